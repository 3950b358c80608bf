// SPDX-License-Identifier: GPL-3.0-or-later
#include "front/desktop/theme.h"

#include <QApplication>
#include <QFontMetricsF>
#include <QStyle>

#include "front/desktop/clear_style.h"
#include "front/desktop/system_look.h"

namespace korvane {

namespace {

struct Shades {
  QRgb window, base, alternate, text, quiet, unit, button, accent, onAccent, light, mid, dark;
};
constexpr Shades kLight{0xffeff1f4, 0xffffffff, 0xfff6f8fa, 0xff1c2128, 0xff8b949e, 0xff66707c,
                        0xfff7f8fa, 0xff165c9e, 0xffffffff, 0xffffffff, 0xffc8ced6, 0xff9aa3ad};
constexpr Shades kDark{0xff2d3036, 0xff191b1f, 0xff1f2226, 0xffe8eaed, 0xff767d88, 0xffa3abb6,
                       0xff3b4048, 0xff6eb0f0, 0xff10151c, 0xff50565f, 0xff464c55, 0xff15171a};

QPalette Made(const Shades& s) {
  QPalette p;
  p.setColor(QPalette::Window, s.window);
  p.setColor(QPalette::Base, s.base);
  p.setColor(QPalette::AlternateBase, s.alternate);
  for (const auto role :
       {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText}) {
    p.setColor(role, s.text);
    p.setColor(QPalette::Disabled, role, s.quiet);
  }
  p.setColor(QPalette::ToolTipBase, s.base);
  p.setColor(QPalette::PlaceholderText, s.unit);
  p.setColor(QPalette::Button, s.button);
  p.setColor(QPalette::Highlight, s.accent);
  p.setColor(QPalette::HighlightedText, s.onAccent);
  p.setColor(QPalette::Link, s.accent);
  p.setColor(QPalette::Light, s.light);
  p.setColor(QPalette::Midlight, s.light);
  p.setColor(QPalette::Mid, s.mid);
  p.setColor(QPalette::Dark, s.dark);
  p.setColor(QPalette::Disabled, QPalette::Base, s.window);
  p.setColor(QPalette::Disabled, QPalette::Highlight, s.mid);
  return p;
}

Colour From(const QColor& c) {
  return {static_cast<std::uint8_t>(c.red()), static_cast<std::uint8_t>(c.green()),
          static_cast<std::uint8_t>(c.blue())};
}

}  // namespace

void ApplyTheme(Theme theme) {
  const bool systemDark = SystemIsDark();
  QApplication::setStyle(new ClearStyle);
  const bool dark = theme == Theme::Dark || (theme == Theme::System && systemDark);
  QApplication::setPalette(Made(dark ? kDark : kLight));
}

QPalette PaperPalette() {
  return Made(kLight);
}

bool IsDark(const QPalette& palette) {
  return palette.color(QPalette::Window).lightness() <
         palette.color(QPalette::WindowText).lightness();
}

Palette DrawingColours(const QPalette& palette) {
  Palette colours = IsDark(palette) ? Palette::Dark() : Palette::Light();
  colours.colours[static_cast<std::size_t>(Role::Paper)] = From(palette.color(QPalette::Base));
  return colours;
}

QColor ColourFor(Role role, const QPalette& palette) {
  const Colour c = DrawingColours(palette)[role];
  return QColor(c.r, c.g, c.b);
}

QPalette FieldPalette(const QPalette& window, bool green) {
  QPalette p = window;
  for (const auto group : {QPalette::Active, QPalette::Inactive}) {
    p.setColor(group, QPalette::Base, green ? QColor(0, 255, 0) : QColor(Qt::white));
    p.setColor(group, QPalette::Text, Qt::black);
    p.setColor(group, QPalette::Highlight, QColor(kLight.accent));
    p.setColor(group, QPalette::HighlightedText, QColor(kLight.onAccent));
  }
  // A locked field shows a value that is in force: to be read, but not written in.
  p.setColor(QPalette::Disabled, QPalette::Text, window.color(QPalette::PlaceholderText));
  return p;
}

int Ems(const QWidget* widget, double count) {
  return qRound(QFontMetricsF(widget->font()).height() * 0.75 * count);
}

}  // namespace korvane
