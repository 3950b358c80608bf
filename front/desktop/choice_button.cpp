// SPDX-License-Identifier: GPL-3.0-or-later
#include "front/desktop/choice_button.h"

#include <QAccessible>
#include <QAccessibleWidget>

namespace korvane {

namespace {

class AccessibleChoice : public QAccessibleWidget {
public:
  explicit AccessibleChoice(ChoiceButton* button)
      : QAccessibleWidget(button, QAccessible::RadioButton) {
    addControllingSignal(QStringLiteral("toggled(bool)"));
  }
  QAccessible::State state() const override {
    QAccessible::State now = QAccessibleWidget::state();
    const auto* button = static_cast<const ChoiceButton*>(widget());
    now.checkable = true;
    now.checked = button->isChecked();
    return now;
  }
  QStringList actionNames() const override { return {pressAction()}; }
  void doAction(const QString& action) override {
    if (action == pressAction()) static_cast<ChoiceButton*>(widget())->click();
  }
};

QAccessibleInterface* MakeAccessible(const QString&, QObject* object) {
  auto* button = qobject_cast<ChoiceButton*>(object);
  return button == nullptr ? nullptr : new AccessibleChoice(button);
}

}  // namespace

ChoiceButton::ChoiceButton(QWidget* parent) : QToolButton(parent) {
  static const bool installed = [] {
    QAccessible::installFactory(MakeAccessible);
    return true;
  }();
  Q_UNUSED(installed);
  setCheckable(true);
}

}  // namespace korvane
