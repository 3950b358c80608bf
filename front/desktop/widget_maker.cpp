// SPDX-License-Identifier: GPL-3.0-or-later
#include "front/desktop/widget_maker.h"

#include <QCheckBox>
#include <QComboBox>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>
#include <QWheelEvent>

#include "front/desktop/choice_button.h"
#include "front/desktop/field_edit.h"
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
  return c.kind == Kind::Label && (c.value >= 0 || (!c.caption.empty() && c.text));
}

}  // namespace

bool WidgetMaker::Done(const Control* control) const {
  return std::any_of(made_.begin(), made_.end(),
                     [&](const Made& made) { return made.control == control; });
}

QWidget* WidgetMaker::Named(const Control* control, QWidget* widget) {
  widget->setObjectName(Q(control->name));
  made_.push_back({control, widget});
  return widget;
}

QToolButton* WidgetMaker::NewPicture(const Control& control) {
  QToolButton* button = control.checked != nullptr ? new ChoiceButton : new QToolButton;
  button->setToolTip(Q(control.tip));
  button->setFocusPolicy(Qt::StrongFocus);
  const QIcon icon = PictureOf(control.sign, session_.st());
  if (!icon.isNull()) {
    button->setIcon(icon);
    const int height = Ems(button, 2.1);
    button->setIconSize(QSize(qRound(height * kPictureRatio), height));
  } else {
    button->setToolButtonStyle(Qt::ToolButtonTextOnly);
    button->setFixedWidth(Ems(button, control.words ? 7.1 : 2.9));
  }
  return button;
}

QWidget* WidgetMaker::NewSurface(const Control& c) {
  switch (c.painting) {
    case Painting::Figure:
      return new FigurePane(session_, form_);
    case Painting::Modes:
      return new ModePane(session_);
    case Painting::ShortResults:
      return new ResultPane(session_, ResultPane::Length::Short);
    case Painting::LongResults:
      return new ResultPane(session_, ResultPane::Length::Long);
    case Painting::None:
      break;
  }
  return new QWidget;
}

QWidget* WidgetMaker::NewWidget(const Control& c) {
  switch (c.kind) {
    case Kind::Input: {
      auto* edit = new FieldEdit;
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
      return NewPicture(c);
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
      return NewSurface(c);
    case Kind::Frame:
      return new QGroupBox(Q(c.caption).trimmed());
    case Kind::Menu:
      break;
  }
  return new QWidget;
}

QWidget* WidgetMaker::Make(const Control* control) {
  return Named(control, NewWidget(*control));
}

QWidget* WidgetMaker::MakeOpenList(const Control* control) {
  auto* list = new SizeList;
  list->setUniformItemSizes(true);
  int widest = 0;
  for (const std::string& item : session_.Items(*control)) {
    widest = std::max(widest, list->fontMetrics().horizontalAdvance(Q(item)));
  }
  list->setMinimumWidth(widest + Ems(list, 4));
  return Named(control, list);
}

void WidgetMaker::Accompany(const Control* control, QWidget* widget) {
  companions_.push_back({control, widget});
}

QLabel* WidgetMaker::Caption(const Control* control) {
  auto* label = new QLabel(Q(control->caption).trimmed());
  Accompany(control, label);
  label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  return label;
}

QLabel* WidgetMaker::Unit(const Control* control) {
  auto* label = new QLabel(Q(control->unit));
  Accompany(control, label);
  label->setForegroundRole(QPalette::PlaceholderText);
  return label;
}

void WidgetMaker::FieldRow(QGridLayout* grid, int row, const Control* field, int column) {
  grid->addWidget(Caption(field), row, column);
  QWidget* widget = Make(field);
  const bool wide = field->kind == Kind::List || !field->field.IsNumber();
  grid->addWidget(widget, row, column + 1, 1, wide ? 2 : 1);
  if (!wide) grid->addWidget(Unit(field), row, column + 2);
}

void WidgetMaker::ValueRow(QGridLayout* grid, int row, const Control* label) {
  grid->addWidget(Caption(label), row, 0);
  auto* value = static_cast<ValueLabel*>(Make(label));
  Accompany(label, value->unit());
  grid->addWidget(value, row, 1);
  grid->addWidget(value->unit(), row, 2);
}

QGroupBox* WidgetMaker::Frame(const Control* frame) {
  return static_cast<QGroupBox*>(Make(frame));
}

std::vector<const Control*> WidgetMaker::Rest() const {
  std::vector<const Control*> rest;
  for (const Control& c : form_.controls) {
    if (c.kind != Kind::Menu && !Done(&c)) rest.push_back(&c);
  }
  return rest;
}

void WidgetMaker::Stack(QBoxLayout* into, const std::vector<const Control*>& controls) {
  QBoxLayout* column = into;
  QGridLayout* grid = nullptr;      // open run of fields or values
  QHBoxLayout* pictures = nullptr;  // open run of pictures
  for (const Control* c : controls) {
    if (Done(c) || c->kind == Kind::Button) continue;
    if (!IsFieldRow(*c) && !IsValue(*c)) grid = nullptr;
    if (c->kind != Kind::Picture) pictures = nullptr;
    if (c->kind == Kind::Frame) {
      QGroupBox* group = Frame(c);
      column = new QVBoxLayout(group);
      into->addWidget(group);
    } else if (IsFieldRow(*c) || IsValue(*c)) {
      if (grid == nullptr) {
        grid = new QGridLayout;
        grid->setColumnStretch(3, 1);
        column->addLayout(grid);
      }
      if (IsValue(*c)) {
        ValueRow(grid, grid->rowCount(), c);
      } else {
        FieldRow(grid, grid->rowCount(), c);
      }
    } else if (c->kind == Kind::Picture) {
      if (pictures == nullptr) {
        pictures = new QHBoxLayout;
        column->addLayout(pictures);
        pictures->addStretch(1);
      }
      pictures->insertWidget(pictures->count() - 1, Make(c));
    } else {
      QWidget* widget = Make(c);
      if (c->kind == Kind::Surface) widget->setMinimumSize(widget->sizeHint());
      column->addWidget(widget, c->kind == Kind::Surface ? 1 : 0);
    }
  }
}

QLayout* WidgetMaker::ButtonRow() {
  auto* row = new QHBoxLayout;
  row->addStretch(1);
  for (const Control* c : Rest()) {
    if (c->kind == Kind::Button) row->addWidget(Make(c));
  }
  return row;
}

}  // namespace korvane
