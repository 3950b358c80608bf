// SPDX-License-Identifier: GPL-3.0-or-later
#include "front/desktop/form_binder.h"

#include <QAbstractButton>
#include <QAction>
#include <QComboBox>
#include <QFocusEvent>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QRadioButton>
#include <QToolButton>

#include "front/desktop/desktop.h"
#include "front/desktop/panes.h"
#include "front/desktop/tab_order.h"
#include "front/desktop/theme.h"

namespace korvane {

namespace {

QString Q(const std::string& text) {
  return QString::fromStdString(text);
}

QStringList ItemsOf(const Session& s, const std::string& key) {
  QStringList items;
  for (const std::string& item : s.Items(key)) items << Q(item);
  return items;
}

void ShowText(QLabel* label, const std::string& text) {
  if (label->text() != Q(text)) label->setText(Q(text));
}

bool IsReturn(const QEvent* event) {
  if (event->type() != QEvent::KeyPress) return false;
  const int pressed = static_cast<const QKeyEvent*>(event)->key();
  return pressed == Qt::Key_Return || pressed == Qt::Key_Enter;
}

}  // namespace

FormBinder::FormBinder(Desktop& desktop, const Form& form, QWidget* root)
    : QObject(root), desktop_(desktop), form_(form), root_(root) {
  for (const Control& control : form_.controls) {
    if (control.kind == Kind::Menu) continue;
    for (QWidget* widget : root_->findChildren<QWidget*>(Q(control.name))) {
      BindOne(control, widget);
    }
  }
  for (Bound& bound : bound_) {
    for (QWidget* widget : root_->findChildren<QWidget*>()) {
      if (widget->property(kBelongsTo).toString() == Q(bound.control->name)) {
        bound.companions.push_back(widget);
      }
    }
    Describe(bound);
  }
  ChainTabsByLayout(root_);
  desktop_.Attach(this);
}

FormBinder::~FormBinder() {
  desktop_.Detach(this);
}

void FormBinder::BindOne(const Control& control, QWidget* widget) {
  Bound bound{&control, form_.name + "." + control.name, widget, {}, {}};
  if (auto* edit = qobject_cast<QLineEdit*>(widget)) {
    BindEdit(bound, edit);
  } else if (qobject_cast<QAbstractButton*>(widget) != nullptr) {
    BindButton(bound);
  } else if (control.kind == Kind::List) {
    BindList(bound);
  } else if (auto* label = qobject_cast<ValueLabel*>(widget)) {
    bound.refresh = [this, label, key = bound.key] {
      label->ShowValue(Q(desktop_.session().Text(key)));
    };
  } else if (auto* text = qobject_cast<QLabel*>(widget)) {
    bound.refresh = [this, text, key = bound.key] { ShowText(text, desktop_.session().Text(key)); };
  } else if (auto* pane = qobject_cast<Pane*>(widget)) {
    bound.refresh = [this, pane, key = bound.key] {
      pane->setAccessibleDescription(Q(desktop_.session().Text(key)));
      pane->Refresh();
    };
    if (control.click) {
      connect(pane, &Pane::Clicked, this, [this, key = bound.key] { desktop_.Click(key); });
    }
  }
  bound_.push_back(std::move(bound));
}

void FormBinder::BindEdit(Bound& bound, QLineEdit* edit) {
  edit->installEventFilter(this);
  connect(edit, &QLineEdit::textEdited, this, [this, key = bound.key](const QString& text) {
    // A key after a shortcut or a menu takes the field into use again.
    if (desktop_.session().FocusedField() != key) desktop_.session().FocusField(key);
    desktop_.session().Type(key, text.toStdString());
    Refresh();
  });
  bound.refresh = [this, edit, key = bound.key] {
    const Session& s = desktop_.session();
    const QString text = Q(s.Text(key));
    if (edit->text() != text) {
      edit->setText(text);
      // A long name is read from its beginning.
      if (!edit->hasFocus()) edit->setCursorPosition(0);
    }
    edit->setPalette(FieldPalette(root_->palette(), s.Green(key)));
  };
}

void FormBinder::BindButton(Bound& bound) {
  auto* button = qobject_cast<QAbstractButton*>(bound.widget);
  button->setAutoExclusive(false);
  if (bound.control->returnKey) button->installEventFilter(this);
  connect(button, &QAbstractButton::clicked, this, [this, key = bound.key, button] {
    desktop_.Click(key);
    // Whatever the click did to the mark, the session says how it stands.
    if (button->isCheckable()) button->setChecked(desktop_.session().Checked(key));
  });
  const bool speaks = bound.control->text != nullptr;
  bound.refresh = [this, button, key = bound.key, speaks] {
    const Session& s = desktop_.session();
    if (button->isCheckable()) button->setChecked(s.Checked(key));
    if (speaks && button->text() != Q(s.Text(key))) button->setText(Q(s.Text(key)));
    if (!button->icon().isNull()) button->update();
  };
}

void FormBinder::BindList(Bound& bound) {
  const std::string key = bound.key;
  if (auto* combo = qobject_cast<QComboBox*>(bound.widget)) {
    connect(combo, &QComboBox::activated, this,
            [this, key](int index) { desktop_.Select(key, index); });
    bound.refresh = [this, combo, key] {
      const Session& s = desktop_.session();
      const QStringList items = ItemsOf(s, key);
      QStringList shown;
      for (int i = 0; i < combo->count(); ++i) shown << combo->itemText(i);
      if (shown != items) {
        combo->clear();
        combo->addItems(items);
      }
      combo->setCurrentIndex(s.Selected(key));
    };
  } else if (auto* list = qobject_cast<QListWidget*>(bound.widget)) {
    connect(list, &QListWidget::currentRowChanged, this, [this, key](int index) {
      if (!desktop_.Busy() && index >= 0) desktop_.Select(key, index);
    });
    bound.refresh = [this, list, key] {
      const Session& s = desktop_.session();
      const QStringList items = ItemsOf(s, key);
      QStringList shown;
      for (int i = 0; i < list->count(); ++i) shown << list->item(i)->text();
      if (shown != items) {
        list->clear();
        list->addItems(items);
      }
      if (list->currentRow() != s.Selected(key)) {
        list->setCurrentRow(s.Selected(key));
        list->scrollToItem(list->currentItem(), QAbstractItemView::PositionAtCenter);
      }
    };
  }
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
    QString tip = Q(TipOf(c, desktop_.session().st())).trimmed();
    if (tip.isEmpty() && c.kind == Kind::Input) tip = name;
    bound.widget->setToolTip(tip);
  }
}

void FormBinder::RenewTip(QLineEdit* edit) const {
  const std::string name = edit->objectName().toStdString();
  const Control* c = FindControl(form_, name);
  if (c == nullptr || !c->field.IsNumber() || c->field.input.field->limit.follows == nullptr)
    return;
  edit->setToolTip(Q(TipOf(*c, desktop_.session().st())).trimmed());
}

void FormBinder::Refresh() {
  const Session& s = desktop_.session();
  for (const Bound& bound : bound_) {
    const bool visible = s.Visible(bound.key);
    const bool enabled = s.Enabled(bound.key);
    bound.widget->setVisible(visible);
    bound.widget->setEnabled(enabled);
    for (QWidget* companion : bound.companions) {
      companion->setVisible(visible);
      companion->setEnabled(enabled);
    }
    if (bound.refresh) bound.refresh();
  }
}

QWidget* FormBinder::WidgetOf(const std::string& control) const {
  for (const Bound& bound : bound_) {
    if (bound.control->name == control) return bound.widget;
  }
  return nullptr;
}

void FormBinder::TakeFocus(const std::string& control) {
  QWidget* widget = WidgetOf(control);
  if (widget == nullptr || (widget->hasFocus() && desktop_.session().FocusedField().empty())) {
    return;
  }
  widget->setFocus(Qt::OtherFocusReason);
  if (auto* edit = qobject_cast<QLineEdit*>(widget)) edit->selectAll();
}

bool FormBinder::eventFilter(QObject* watched, QEvent* event) {
  if (desktop_.Busy()) return QObject::eventFilter(watched, event);
  const std::string key = form_.name + "." + watched->objectName().toStdString();
  Session& s = desktop_.session();
  if (IsReturn(event)) {
    desktop_.Act([&] { s.Return(key); });
    return true;
  }
  auto* edit = qobject_cast<QLineEdit*>(watched);
  if (edit == nullptr) return QObject::eventFilter(watched, event);
  if (event->type() == QEvent::ToolTip) RenewTip(edit);
  if (event->type() == QEvent::FocusIn) {
    const auto reason = static_cast<QFocusEvent*>(event)->reason();
    if (reason == Qt::PopupFocusReason) return false;
    if (s.FocusedField() != key && !desktop_.Commit()) return false;
    s.FocusField(key);
    desktop_.Refresh();
    if (reason != Qt::MouseFocusReason) {
      edit->selectAll();
    } else {
      // The press that brought the focus would take the selection away again.
      QMetaObject::invokeMethod(edit, &QLineEdit::selectAll, Qt::QueuedConnection);
    }
  }
  if (event->type() == QEvent::FocusOut) {
    const auto reason = static_cast<QFocusEvent*>(event)->reason();
    // Menus, message boxes and other programs leave the field in use.
    if (reason == Qt::PopupFocusReason || reason == Qt::MenuBarFocusReason ||
        reason == Qt::ActiveWindowFocusReason) {
      return false;
    }
    if (s.FocusedField() == key) {
      desktop_.Act([&] { s.Leave(key); });
    }
  }
  return QObject::eventFilter(watched, event);
}

}  // namespace korvane
