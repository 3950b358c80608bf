// SPDX-License-Identifier: GPL-3.0-or-later
// What a screen reader is told of a diagram: its texts, put together when they are asked for.
#pragma once

namespace korvane {

class DiagramBox;

/// Lets screen readers ask the diagrams themselves; called again it does nothing.
void NameDiagramsWhenAsked();

/// Tells a screen reader, if one runs, that a diagram's texts may have changed.
void TellNewName(DiagramBox& box);

}  // namespace korvane
