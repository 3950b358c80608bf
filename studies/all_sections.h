// SPDX-License-Identifier: GPL-3.0-or-later
// Every size of all catalogues for one member, everything else held fixed.
#pragma once

#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "checks/verdict.h"
#include "core/calculation.h"
#include "studies/section_names.h"

namespace korvane {

/// The sizes of all catalogues in the order of the families; rectangular hollow sections as
/// catalogued and turned.
std::span<const CatalogueSize> AllSizes();

/// The word that a catalogue is chosen by: that of the optimiser's series ("HEA", "CFRHS"), of the
/// sub-family ("UB"), else of the family ("L-equal", "J", "Plate + L").
std::string SeriesWord(const CatalogueSize& size);

/// The sizes of a series by their names, in their order; none where no series has that word, in
/// whatever case, and of sections whose name takes dimensions too.
std::vector<std::string> NamesOfSeries(std::string_view word, const Catalogues& cat);

/// The name of the section in force as SectionNames takes it: single blanks alone, a turned section
/// with its dimensions exchanged. Empty where the family is unknown.
std::string SectionName(const ProjectState& st, const Catalogues& cat);

/// A size with the member's results.
struct SizeResult {
  CatalogueSize size;
  std::string name;
  float h = 0, b = 0;            ///< mm
  float weight = 0;              ///< kg/m
  float surface = 0;             ///< m2/m
  float totalWeight = 0;         ///< kg, of the member
  float totalSurface = 0;        ///< m2, of the member
  float MaxIR = 0;               ///< 0 where the calculation stopped
  std::string governing;         ///< check with the greatest ratio
  float LoverZ = 0, LoverY = 0;  ///< x of the deflection L/x, 0 without one
  Standing standing = Standing::Stopped;
  Serviceability sls = Serviceability::None;
};

/// Passes the ultimate limit state; with sls the deflection limit, where there is one, as well.
bool Passes(const SizeResult& result, bool sls);

/// The member with that size in force.
ProjectState WithSize(const ProjectState& member, const CatalogueSize& size);

/// Designs the member with one size as DesignMember does; work is written over.
SizeResult DesignSize(const Design& started, const ProjectState& member, const CatalogueSize& size,
                      Design& work);

/// The same with all sizes that are wanted, in their order, in as many threads as there are cores.
/// wanted is asked in this one.
std::vector<SizeResult> DesignSizes(const Design& started, const ProjectState& member,
                                    const std::function<bool(const CatalogueSize&)>& wanted);

}  // namespace korvane
