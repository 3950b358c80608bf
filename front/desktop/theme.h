// SPDX-License-Identifier: GPL-3.0-or-later
// Colours of the windows and panes, light or dark, and the sizes that follow from the font.
#pragma once

#include <QPalette>
#include <QSize>
#include <QWidget>

#include "presentation/drawing_target.h"

namespace korvane {

enum class Theme { System, Light, Dark };

/// Dresses the application: one style, one of two palettes. System follows the desktop.
void ApplyTheme(Theme theme);

/// The colours of what goes to paper or to another program.
QPalette PaperPalette();

bool IsDark(const QPalette& palette);

/// Colours of the drawings in a window of this palette; the paper is the window's base.
Palette DrawingColours(const QPalette& palette);
QColor ColourFor(Role role, const QPalette& palette);

/// Palette of a text field: green while it has the focus, white when accepted.
QPalette FieldPalette(const QPalette& window, bool green);

/// What the frame of a window manager takes of a screen, logical pixels.
constexpr QSize kWindowFrame{8, 48};

/// A length in ems of the widget's font, logical pixels.
int Ems(const QWidget* widget, double count);

}  // namespace korvane
