// SPDX-License-Identifier: GPL-3.0-or-later
#include "front/desktop/widget_maker.h"

#include <QCheckBox>
#include <QComboBox>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>
#include <QWheelEvent>

#include "front/desktop/form_binder.h"
#include "front/desktop/icons.h"
#include "front/desktop/mode_pane.h"
#include "front/desktop/panes.h"
#include "front/desktop/size_list.h"
#include "front/desktop/theme.h"

namespace korvane {

namespace {

QString Q(const std::string& text) {
  return QString::fromStdString(text);
}

/// From so many letters on a caption takes two lines.
constexpr int kLongCaption = 46;

/// A long caption in two lines, broken at the blank nearest to its middle.
QString InLines(const QString& caption) {
  if (caption.size() <= kLongCaption) return caption;
  const auto middle = caption.size() / 2;
  const auto before = caption.lastIndexOf(QLatin1Char(' '), middle);
  const auto after = caption.indexOf(QLatin1Char(' '), middle);
  const auto at = after < 0 || middle - before < after - middle ? before : after;
  return at <= 0 ? caption : caption.left(at) + QLatin1Char('\n') + caption.mid(at + 1);
}

/// A drop-down that the wheel turns only while it has the focus: a person who scrolls the inputs
/// past it must not change the member.
class SteadyCombo : public QComboBox {
public:
  SteadyCombo() { setFocusPolicy(Qt::StrongFocus); }

protected:
  void wheelEvent(QWheelEvent* event) override {
    if (hasFocus()) {
      QComboBox::wheelEvent(event);
    } else {
      event->ignore();
    }
  }
};

bool IsFieldRow(const Control& c) {
  return c.kind == Kind::Input || c.kind == Kind::List;
}

bool IsValue(const Control& c) {
  return c.kind == Kind::Label && !c.caption.empty() && c.text;
}

}  // namespace

const Control& WidgetMaker::At(const std::string& name) const {
  const Control* c = FindControl(form_, name);
  if (c == nullptr) throw UnknownControl("no control " + name + " on " + form_.name);
  return *c;
}

QToolButton* WidgetMaker::NewPicture(const Control& control, std::function<int()> code) {
  auto* button = new QToolButton;
  button->setCheckable(control.checked != nullptr);
  button->setToolTip(Q(control.tip));
  button->setFocusPolicy(Qt::StrongFocus);
  const QIcon icon = PictureOf(form_.name, control.name, std::move(code));
  if (!icon.isNull()) {
    button->setIcon(icon);
    const int height = Ems(button, 2.1);
    button->setIconSize(QSize(qRound(height * kPictureRatio), height));
  } else {
    button->setToolButtonStyle(Qt::ToolButtonTextOnly);
    button->setFixedWidth(Ems(button, 2.9));
  }
  return button;
}

QWidget* WidgetMaker::NewWidget(const Control& c) {
  switch (c.kind) {
    case Kind::Input: {
      auto* edit = new QLineEdit;
      if (c.field.IsNumber()) {
        edit->setAlignment(Qt::AlignRight);
        const bool exponent =
            std::string_view(c.field.Format()).find('E') != std::string_view::npos;
        edit->setFixedWidth(Ems(edit, exponent ? 7.6 : 5.6));
      }
      return edit;
    }
    case Kind::Option:
      return new QRadioButton(InLines(Q(c.caption)));
    case Kind::Check:
      return new QCheckBox(Q(c.caption));
    case Kind::List: {
      auto* combo = new SteadyCombo;
      combo->setMaxVisibleItems(24);
      return combo;
    }
    case Kind::Picture:
      return NewPicture(c, {});
    case Kind::Button: {
      auto* button = new QPushButton(Q(c.caption));
      button->setAutoDefault(false);
      return button;
    }
    case Kind::Label: {
      if (IsValue(c)) return new ValueLabel;
      auto* label = new QLabel(Q(c.caption));
      label->setWordWrap(c.caption.size() > kLongCaption);
      return label;
    }
    case Kind::Surface:
      if (c.name == "pic1") return new FigurePane(session_, form_.name);
      if (c.name == "picmode") return new ModePane(session_);
      return new ResultPane(session_,
                            c.name == "pic31" ? ResultPane::Form::Short : ResultPane::Form::Long);
    case Kind::Frame:
      return new QGroupBox(Q(c.caption).trimmed());
    case Kind::Menu:
      break;
  }
  return new QWidget;
}

QWidget* WidgetMaker::Make(const std::string& name) {
  QWidget* widget = NewWidget(At(name));
  widget->setObjectName(Q(name));
  made_.insert(name);
  return widget;
}

QWidget* WidgetMaker::MakeOpenList(const std::string& name) {
  auto* list = new SizeList;
  list->setObjectName(Q(name));
  list->setUniformItemSizes(true);
  int widest = 0;
  for (const std::string& item : session_.Items(form_.name + "." + name)) {
    widest = std::max(widest, list->fontMetrics().horizontalAdvance(Q(item)));
  }
  list->setMinimumWidth(widest + Ems(list, 4));
  made_.insert(name);
  return list;
}

QToolButton* WidgetMaker::MakePicture(const std::string& name, std::function<int()> code) {
  QToolButton* button = NewPicture(At(name), std::move(code));
  button->setObjectName(Q(name));
  made_.insert(name);
  return button;
}

QLabel* WidgetMaker::Caption(const std::string& name) const {
  auto* label = new QLabel(Q(At(name).caption).trimmed());
  label->setProperty(kBelongsTo, Q(name));
  label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  return label;
}

QLabel* WidgetMaker::Unit(const std::string& name) const {
  auto* label = new QLabel(Q(At(name).unit));
  label->setProperty(kBelongsTo, Q(name));
  label->setForegroundRole(QPalette::PlaceholderText);
  return label;
}

void WidgetMaker::FieldRow(QGridLayout* grid, int row, const std::string& name, int column) {
  const Control& c = At(name);
  grid->addWidget(Caption(name), row, column);
  QWidget* widget = Make(name);
  const bool wide = c.kind == Kind::List || !c.field.IsNumber();
  grid->addWidget(widget, row, column + 1, 1, wide ? 2 : 1);
  if (!wide) grid->addWidget(Unit(name), row, column + 2);
}

void WidgetMaker::ValueRow(QGridLayout* grid, int row, const std::string& name) {
  grid->addWidget(Caption(name), row, 0);
  auto* value = static_cast<ValueLabel*>(Make(name));
  value->unit()->setProperty(kBelongsTo, Q(name));
  grid->addWidget(value, row, 1);
  grid->addWidget(value->unit(), row, 2);
}

QGroupBox* WidgetMaker::Frame(const std::string& name) {
  return static_cast<QGroupBox*>(Make(name));
}

std::vector<const Control*> WidgetMaker::Rest() const {
  std::vector<const Control*> rest;
  for (const Control& c : form_.controls) {
    if (c.kind != Kind::Menu && !Done(c.name)) rest.push_back(&c);
  }
  return rest;
}

void WidgetMaker::Stack(QBoxLayout* into, const std::vector<const Control*>& controls) {
  QBoxLayout* column = into;
  QGridLayout* grid = nullptr;      // open run of fields or values
  QHBoxLayout* pictures = nullptr;  // open run of pictures
  for (const Control* c : controls) {
    if (Done(c->name) || c->kind == Kind::Button) continue;
    if (!IsFieldRow(*c) && !IsValue(*c)) grid = nullptr;
    if (c->kind != Kind::Picture) pictures = nullptr;
    if (c->kind == Kind::Frame) {
      QGroupBox* group = Frame(c->name);
      column = new QVBoxLayout(group);
      into->addWidget(group);
    } else if (IsFieldRow(*c) || IsValue(*c)) {
      if (grid == nullptr) {
        grid = new QGridLayout;
        grid->setColumnStretch(3, 1);
        column->addLayout(grid);
      }
      if (IsValue(*c)) {
        ValueRow(grid, grid->rowCount(), c->name);
      } else {
        FieldRow(grid, grid->rowCount(), c->name);
      }
    } else if (c->kind == Kind::Picture) {
      if (pictures == nullptr) {
        pictures = new QHBoxLayout;
        column->addLayout(pictures);
        pictures->addStretch(1);
      }
      pictures->insertWidget(pictures->count() - 1, Make(c->name));
    } else {
      QWidget* widget = Make(c->name);
      if (c->kind == Kind::Surface) widget->setMinimumSize(widget->sizeHint());
      column->addWidget(widget, c->kind == Kind::Surface ? 1 : 0);
    }
  }
}

QLayout* WidgetMaker::ButtonRow() {
  auto* row = new QHBoxLayout;
  row->addStretch(1);
  for (const Control* c : Rest()) {
    if (c->kind == Kind::Button) row->addWidget(Make(c->name));
  }
  return row;
}

}  // namespace korvane
