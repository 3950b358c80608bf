// SPDX-License-Identifier: GPL-3.0-or-later
// What is made of the help book: its page of all inputs, from the tables of the forms, its page
// of all notes, from the table of the notes, and the list of its pages.
#pragma once

#include <memory>
#include <string>

#include "core/calculation.h"
#include "front/form_table.h"

namespace korvane {

/// The whole page: every form with its fields (unit, value in a new project, accepted values,
/// message), its other controls and the commands of the menus. UTF-8, the same on every machine.
std::string InputsPage(std::shared_ptr<const Library> library);

/// The page of all notes of the verdict by code: severity, meaning, remedy. UTF-8.
std::string NotesPage();

/// The list of pages for a browser (pages.js): file, title and group of each entry of the contents
/// page, in their order.
std::string PagesScript(const std::string& index);

}  // namespace korvane
