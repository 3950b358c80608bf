// SPDX-License-Identifier: GPL-3.0-or-later
#include "front/desktop/form_binder.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <optional>

#include "front/desktop/desktop.h"
#include "front/desktop/panes.h"
#include "front/desktop/size_list.h"
#include "front/desktop/tab_order.h"
#include "front/desktop/theme.h"
#include "front/desktop/widget_maker.h"

namespace korvane {

namespace {

QString Q(const std::string& text) {
  return QString::fromStdString(text);
}

QStringList ItemsOf(const Session& s, const Control& list) {
  QStringList items;
  for (const std::string& item : s.Items(list)) items << Q(item);
  return items;
}

/// Tells whether the items of a list are others than those shown.
class ItemsWatch {
public:
  bool Changed(const Session& s, const Control& list) {
    const int now = list.itemsVersion ? list.itemsVersion(s) : 0;
    if (version_ == now) return false;
    version_ = now;
    return true;
  }

private:
  std::optional<int> version_;
};

void ShowText(QLabel* label, const QString& text) {
  if (label->text() != text) label->setText(text);
}

void ShowAlarm(QLabel* label, bool alarm, QPalette palette) {
  if (alarm) palette.setColor(QPalette::WindowText, ColourFor(Role::Fail, palette));
  label->setPalette(palette);
}

bool IsReturn(const QEvent* event) {
  if (event->type() != QEvent::KeyPress) return false;
  const int pressed = static_cast<const QKeyEvent*>(event)->key();
  return pressed == Qt::Key_Return || pressed == Qt::Key_Enter;
}

bool IsEscape(const QEvent* event) {
  return event->type() == QEvent::KeyPress &&
         static_cast<const QKeyEvent*>(event)->key() == Qt::Key_Escape;
}

}  // namespace

FormBinder::FormBinder(Desktop& desktop, const WidgetMaker& maker, QWidget* root)
    : QObject(root), desktop_(desktop), form_(maker.form()), root_(root) {
  for (const WidgetMaker::Made& made : maker.AllMade()) BindOne(*made.control, made.widget);
  for (const WidgetMaker::Made& companion : maker.Companions()) {
    for (Bound& bound : bound_) {
      if (bound.control == companion.control) bound.companions.push_back(companion.widget);
    }
  }
  for (const Bound& bound : bound_) Describe(bound);
  ChainTabsByLayout(root_);
  desktop_.Attach(this);
}

FormBinder::~FormBinder() {
  desktop_.Detach(this);
}

void FormBinder::BindOne(const Control& control, QWidget* widget) {
  Bound bound{&control, widget, {}, {}};
  const Control* c = &control;
  if (auto* edit = qobject_cast<QLineEdit*>(widget)) {
    BindEdit(bound, edit);
  } else if (qobject_cast<QAbstractButton*>(widget) != nullptr) {
    BindButton(bound);
  } else if (auto* combo = qobject_cast<QComboBox*>(widget)) {
    BindCombo(bound, combo);
  } else if (auto* list = qobject_cast<SizeList*>(widget)) {
    BindOpenList(bound, list);
  } else if (auto* value = qobject_cast<ValueLabel*>(widget); value != nullptr && c->value >= 0) {
    bound.refresh = [this, value, c] {
      const ShownText& shown = values_[static_cast<std::size_t>(c->value)];
      value->ShowValue(Q(shown.text), Q(shown.unit));
    };
  } else if (auto* label = qobject_cast<QLabel*>(widget)) {
    // A literal caption stays as it was made.
    if (c->text) {
      bound.refresh = [this, label, c] {
        ShowText(label, Q(desktop_.session().Text(*c)));
        if (c->alarm) ShowAlarm(label, c->alarm(desktop_.session()), root_->palette());
      };
    }
  } else if (auto* pane = qobject_cast<Pane*>(widget)) {
    bound.refresh = [pane] { pane->Refresh(); };
    if (c->click) connect(pane, &Pane::Clicked, this, [this, c] { desktop_.Click(*c); });
  }
  bound_.push_back(std::move(bound));
}

void FormBinder::BindEdit(Bound& bound, QLineEdit* edit) {
  const Control* c = bound.control;
  edit->installEventFilter(this);
  filtered_[edit] = c;
  connect(edit, &QLineEdit::textEdited, this, [this, c](const QString& text) {
    desktop_.session().Type(*c, text.toStdString());
    Refresh();
  });
  bound.refresh = [this, edit, c, green = std::optional<bool>(), key = qint64(0)]() mutable {
    const Session& s = desktop_.session();
    const QString text = Q(s.Text(*c));
    if (edit->text() != text) {
      edit->setText(text);
      // A long name is read from its beginning.
      if (!edit->hasFocus()) edit->setCursorPosition(0);
    }
    const QPalette palette = root_->palette();
    if (green == s.Green(*c) && key == palette.cacheKey()) return;
    green = s.Green(*c);
    key = palette.cacheKey();
    edit->setPalette(FieldPalette(palette, *green));
  };
}

void FormBinder::BindButton(Bound& bound) {
  const Control* c = bound.control;
  auto* button = qobject_cast<QAbstractButton*>(bound.widget);
  button->setAutoExclusive(false);
  if (c->returnKey) {
    button->installEventFilter(this);
    filtered_[button] = c;
  }
  connect(button, &QAbstractButton::clicked, this, [this, c, button] {
    desktop_.Click(*c);
    // Whatever the click did to the mark, the session says how it stands.
    if (button->isCheckable()) button->setChecked(desktop_.session().Checked(*c));
  });
  const bool follows = c->sign.follows != nullptr;
  bound.refresh = [this, button, c, follows] {
    const Session& s = desktop_.session();
    if (button->isCheckable()) button->setChecked(s.Checked(*c));
    if (c->text) {
      const QString text = Q(s.Text(*c));
      if (button->text() != text) button->setText(text);
    }
    if (follows) button->update();
  };
}

void FormBinder::BindCombo(Bound& bound, QComboBox* combo) {
  const Control* c = bound.control;
  connect(combo, &QComboBox::activated, this, [this, c](int index) { desktop_.Select(*c, index); });
  bound.refresh = [this, combo, c, watch = ItemsWatch()]() mutable {
    const Session& s = desktop_.session();
    if (watch.Changed(s, *c)) {
      combo->clear();
      combo->addItems(ItemsOf(s, *c));
    }
    if (const int row = s.Selected(*c); combo->currentIndex() != row) combo->setCurrentIndex(row);
  };
}

void FormBinder::BindOpenList(Bound& bound, SizeList* list) {
  const Control* c = bound.control;
  connect(list, &QListWidget::currentRowChanged, this, [this, c](int index) {
    if (!desktop_.Busy() && index >= 0) desktop_.Select(*c, index);
  });
  connect(list, &SizeList::ChosenAgain, this, [this, c](int index) {
    if (!desktop_.Busy()) desktop_.Select(*c, index);
  });
  bound.refresh = [this, list, c, watch = ItemsWatch()]() mutable {
    const Session& s = desktop_.session();
    if (watch.Changed(s, *c)) {
      list->clear();
      list->addItems(ItemsOf(s, *c));
    }
    const int row = s.Selected(*c);
    if (list->currentRow() == row) return;
    list->setCurrentRow(row);
    list->scrollToItem(list->currentItem(), QAbstractItemView::PositionAtCenter);
  };
}

void FormBinder::Describe(const Bound& bound) const {
  const Control& c = *bound.control;
  QString name = Q(c.caption.empty() ? c.tip : c.caption).simplified();
  if (name.isEmpty()) name = Q(c.name);
  if (!c.unit.empty()) name += QStringLiteral(" (") + Q(c.unit) + QStringLiteral(")");
  bound.widget->setAccessibleName(name);
  if (c.kind == Kind::Label || c.kind == Kind::Frame) {
    if (!c.tip.empty()) bound.widget->setToolTip(Q(c.tip));
    return;
  }
  if (bound.widget->toolTip().isEmpty()) {
    QString tip = Q(desktop_.session().Tip(c)).trimmed();
    if (tip.isEmpty() && c.kind == Kind::Input) tip = name;
    bound.widget->setToolTip(tip);
  }
}

void FormBinder::Refresh() {
  const Session& s = desktop_.session();
  if (form_.values) values_ = form_.values(s);
  for (const Bound& bound : bound_) {
    const Control& c = *bound.control;
    const bool visible =
        c.value >= 0 ? !values_[static_cast<std::size_t>(c.value)].text.empty() : s.Visible(c);
    const bool enabled = s.Enabled(c);
    bound.widget->setVisible(visible);
    bound.widget->setEnabled(enabled);
    for (QWidget* companion : bound.companions) {
      companion->setVisible(visible);
      companion->setEnabled(enabled);
    }
    if (bound.refresh) bound.refresh();
  }
}

QWidget* FormBinder::WidgetOf(const Control& control) const {
  for (const Bound& bound : bound_) {
    if (bound.control == &control) return bound.widget;
  }
  return nullptr;
}

void FormBinder::TakeFocus(const Control& control) {
  QWidget* widget = WidgetOf(control);
  if (widget == nullptr || (widget->hasFocus() && desktop_.session().FocusedField() == nullptr)) {
    return;
  }
  widget->setFocus(Qt::OtherFocusReason);
  if (auto* edit = qobject_cast<QLineEdit*>(widget)) edit->selectAll();
}

// --- Keys and focus -----------------------------------------------------------------------------

bool FormBinder::eventFilter(QObject* watched, QEvent* event) {
  const Control* control = filtered_.value(watched);
  if (desktop_.Busy() || control == nullptr) return QObject::eventFilter(watched, event);
  if (IsReturn(event)) {
    desktop_.Act([&] { desktop_.session().Return(*control); });
    return true;
  }
  auto* edit = qobject_cast<QLineEdit*>(watched);
  if (edit != nullptr && FieldEvent(*control, edit, event)) return true;
  return QObject::eventFilter(watched, event);
}

bool FormBinder::FieldEvent(const Control& field, QLineEdit* edit, QEvent* event) {
  Session& s = desktop_.session();
  if (event->type() == QEvent::ToolTip && field.field.Limited()) {
    // A limit may follow another input.
    edit->setToolTip(Q(s.Tip(field)).trimmed());
  }
  if (IsEscape(event) && s.IsRefused(field)) {
    desktop_.Act([&] { s.TakeBack(); });
    return true;
  }
  if (event->type() == QEvent::ContextMenu && s.IsRefused(field)) {
    OfferLastAccepted(edit, static_cast<QContextMenuEvent*>(event)->globalPos());
    return true;
  }
  if (event->type() == QEvent::FocusIn) {
    FieldGainsFocus(field, edit, static_cast<QFocusEvent*>(event)->reason());
  }
  if (event->type() == QEvent::FocusOut) {
    const auto reason = static_cast<QFocusEvent*>(event)->reason();
    // Menus, message boxes and other programs leave the field in use.
    if (reason == Qt::PopupFocusReason || reason == Qt::MenuBarFocusReason ||
        reason == Qt::ActiveWindowFocusReason) {
      return false;
    }
    if (s.FocusedField() == &field) {
      desktop_.Act([&] { s.Leave(field); });
    }
  }
  return false;
}

/// The menu of a refused field begins with the value that Escape puts back.
void FormBinder::OfferLastAccepted(QLineEdit* edit, const QPoint& where) {
  Session& s = desktop_.session();
  QMenu* menu = edit->createStandardContextMenu();
  menu->setObjectName(QStringLiteral("refusedfield"));
  menu->setAttribute(Qt::WA_DeleteOnClose);
  auto* back = new QAction(tr("Put back %1").arg(Q(s.LastAccepted())), menu);
  back->setObjectName(QStringLiteral("putback"));
  back->setShortcut(QKeySequence(Qt::Key_Escape));
  connect(back, &QAction::triggered, this, [this, &s] { desktop_.Act([&s] { s.TakeBack(); }); });
  menu->insertAction(menu->actions().value(0), back);
  menu->insertSeparator(menu->actions().value(1));
  menu->popup(where);
}

void FormBinder::FieldGainsFocus(const Control& field, QLineEdit* edit, Qt::FocusReason reason) {
  if (reason == Qt::PopupFocusReason) return;
  Session& s = desktop_.session();
  if (s.FocusedField() != &field && !desktop_.Commit()) return;
  s.FocusField(field);
  desktop_.Refresh();
  if (reason != Qt::MouseFocusReason) {
    edit->selectAll();
  } else {
    // The press that brought the focus would take the selection away again.
    QMetaObject::invokeMethod(edit, &QLineEdit::selectAll, Qt::QueuedConnection);
  }
}

}  // namespace korvane
