// SPDX-License-Identifier: GPL-3.0-or-later
#include "front/desktop/diagram_names.h"

#include <QAccessible>
#include <QAccessibleWidget>

#include "front/desktop/diagram_pane.h"

namespace korvane {

namespace {

class NamedDiagram : public QAccessibleWidget {
public:
  explicit NamedDiagram(DiagramBox* box) : QAccessibleWidget(box, QAccessible::Graphic) {}

  QString text(QAccessible::Text what) const override {
    const auto* box = qobject_cast<DiagramBox*>(object());
    return box != nullptr && what == QAccessible::Name ? box->Texts()
                                                       : QAccessibleWidget::text(what);
  }
};

QAccessibleInterface* NamedDiagramOf(const QString&, QObject* object) {
  auto* box = qobject_cast<DiagramBox*>(object);
  return box == nullptr ? nullptr : new NamedDiagram(box);
}

}  // namespace

void NameDiagramsWhenAsked() {
  QAccessible::installFactory(NamedDiagramOf);
}

void TellNewName(DiagramBox& box) {
  if (!QAccessible::isActive()) return;
  QAccessibleEvent event(&box, QAccessible::NameChanged);
  QAccessible::updateAccessibility(&event);
}

}  // namespace korvane
