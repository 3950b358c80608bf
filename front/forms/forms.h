// SPDX-License-Identifier: GPL-3.0-or-later
// The tables of all forms, one unit a group, and the rules that several forms share.
#pragma once

#include "checks/results.h"
#include "front/forms/handles.h"

namespace korvane {

void AddMainForm(Forms& forms);           ///< korvane
void AddMenus(Forms& forms, Form& main);  ///< the commands of the main form
void AddLoadForms(Forms& forms);          ///< loading, endforce, endstiff, chpoints
void AddBucklingForms(Forms& forms);      ///< vipping, bucklingy, bucklingz, bucklingcurve
void AddSetupForms(Forms& forms);         ///< setup, detailedresult, Modal_ns, about, ...
void AddOptimiserForm(Forms& forms);      ///< optimised series and rows
void AddDatabaseForm(Forms& forms);       ///< sections kept in the project
void AddFamilyForms(Forms& forms);        ///< one form for each family's row

// Rules that stand once and are used by more than one form.
/// The yield stress, in three digits; typed for the free grade alone.
Control YieldField(std::string tip);
/// The label of the SLS factor of the self weight.
Control SlsFactorLabel();
/// The list of materials with its click.
Control MaterialList();
/// The section figure; a click changes its scale.
Control FigureSurface();
/// Title of the form of curves, and the tip of the button that opens it.
inline constexpr const char* kManualCurves =
    " Manual input of buckling curves (ref NS3472 Table 11) ";
/// The pictures' words for the cases of end conditions, 1 to 5.
const char* EndConditionWords(int bucklingCase);
/// The title of a form with a fixed caption.
std::function<std::string(const Session&)> Fixed(std::string caption);
/// The text of a view, its lines joined by " | ".
std::string ViewText(const View& view);
/// The result lines of the main window.
std::string ShortResults(const Session& s);

/// Puts a control at the end of a form.
inline const Control* Put(Form& form, Control control) {
  form.controls.push_back(std::move(control));
  return &form.controls.back();
}

}  // namespace korvane
