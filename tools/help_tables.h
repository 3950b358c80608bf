// SPDX-License-Identifier: GPL-3.0-or-later
// The help book's page of all inputs, made from the tables of the forms.
#pragma once

#include <memory>
#include <string>

#include "core/calculation.h"
#include "front/form_table.h"

namespace korvane {

/// The whole page: every form with its fields (unit, value in a new project, accepted values,
/// message), its other controls and the commands of the menus. UTF-8, the same on every machine.
std::string InputsPage(std::shared_ptr<const Library> library);

}  // namespace korvane
