// SPDX-License-Identifier: GPL-3.0-or-later
// A paint device that writes down what a widget paints as an SVG picture. Text stays text.
#pragma once

#include <QPaintDevice>
#include <QSize>
#include <memory>
#include <string>

namespace korvane {

class SvgEngine;

/// Paper of the size of a widget, in its pixels. What is drawn is not clipped.
class SvgPaper : public QPaintDevice {
public:
  explicit SvgPaper(QSize size);
  ~SvgPaper() override;

  /// The whole document, UTF-8.
  std::string Document() const;

  QPaintEngine* paintEngine() const override;

protected:
  int metric(PaintDeviceMetric metric) const override;

private:
  QSize size_;
  std::unique_ptr<SvgEngine> engine_;
};

}  // namespace korvane
