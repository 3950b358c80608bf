// SPDX-License-Identifier: GPL-3.0-or-later
// The tables of all forms, one unit a group, and the rules that several forms share.
#pragma once

#include <vector>

#include "checks/results.h"
#include "front/form_table.h"

namespace korvane {

void AddMainForm(std::vector<Form>& forms);
void AddLoadForms(std::vector<Form>& forms);      ///< loading, endforce, endstiff, chpoints
void AddBucklingForms(std::vector<Form>& forms);  ///< vipping, bucklingy, bucklingz, bucklingcurve
void AddSetupForms(std::vector<Form>& forms);     ///< setup, detailedresult, Modal_ns, about, ...
void AddOptimiserForm(std::vector<Form>& forms);
void AddDatabaseForm(std::vector<Form>& forms);
void AddFamilyForms(std::vector<Form>& forms);

// Rules that stand once and are used by more than one form.
/// The yield stress, in three digits.
FieldRule YieldRule();
/// The list of materials with its click.
Control MaterialList();
/// A button that closes its form.
Control CloseButton(const char* name, const char* caption, const char* form);
/// The title of a form with a fixed caption.
std::function<std::string(const Session&)> Fixed(std::string caption);
/// The text of a view, its lines joined by " | ".
std::string ViewText(const View& view);

}  // namespace korvane
