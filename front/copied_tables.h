// SPDX-License-Identifier: GPL-3.0-or-later
// Tables for the clipboard: columns by tabs, lines by line ends, numbers with the platform's
// decimal mark. Where the results aren't those of the state in force the reason stands at the head.
#pragma once

#include <string>
#include <vector>

namespace korvane {

class Session;
struct Form;

/// The reason why results don't hold, ahead of a text that is made of them.
std::string WithNotice(const Session& session, const std::string& text);

/// x, moments, shears and deflections at the 51 stations: a row of headings, then a row each.
/// Deflections are those of the serviceability limit state, in mm; end forces have none.
std::vector<std::vector<std::string>> StationRows(const Session& session);
std::string StationTable(const Session& session);

/// The checks that were made: what, formula, numbers, ratio, limit.
std::string CheckTable(const Session& session);

/// The values of a family's form: dimensions, properties, capacities.
std::string ValueTable(const Session& session, const Form& form);

}  // namespace korvane
