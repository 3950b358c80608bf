// SPDX-License-Identifier: GPL-3.0-or-later
// The style of the widgets: Fusion, with marks and chosen pictures that stand out in either theme.
#pragma once

#include <QProxyStyle>

namespace korvane {

class ClearStyle : public QProxyStyle {
  Q_OBJECT

public:
  ClearStyle();

  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
};

}  // namespace korvane
