// SPDX-License-Identifier: GPL-3.0-or-later
// The one table of the 32 section families: who they are and which routines they run.
#pragma once

#include <span>
#include <string>

#include "core/project_state.h"
#include "sections/readprofiles.h"
#include "sections/section_record.h"

namespace korvane {

/// Dimension step: row of the catalogue or typed dimensions into the record.
using LoadFn = void (*)(const ProjectState&, const Catalogues&, SectionRecord&);
/// Effective section or shear step.
using SectionFn = void (*)(const ProjectState&, SectionRecord&);
/// Class or capacities for the forces given.
using ForceFn = void (*)(const ProjectState&, const SectionForces&, SectionRecord&);

struct Family;
/// Shown capacities: runs class and capacities for nominal forces, which it leaves set.
using NominalFn = void (*)(const ProjectState&, const Family&, SectionForces&, SectionRecord&);

/// Which section control routine a family has.
enum class SectionControlKind {
  None,
  DoubleSymmetric,
  Hollow,
  Angle,
  SingleSymmetric,
  T,
  FlatBar,
  Tube,
  Plate
};
/// Which column buckling routine a family has.
enum class BucklingKind { None, DoubleSymmetric, Hollow, Angle, SingleSymmetric, T, FlatBar, Tube };

/// One row of the table. A null routine means that the family has no such step.
struct Family {
  int code;                 ///< ProfileType
  const char* menuControl;  ///< "mnup01"
  const char* menuCaption;  ///< literal caption
  const char* form;         ///< "p01"
  const char* formCaption;  ///< literal caption of the form
  const char* familyWord;   ///< what the menu command stores in FamilyName, or nullptr
  LoadFn load;
  SectionFn effective;
  SectionFn shear;
  ForceFn sectionClass;
  ForceFn capacities;
  ForceFn bucklingClass;  ///< class routine of the column buckling control
  NominalFn nominal;
  SectionControlKind sectionControl;
  BucklingKind buckling;
  bool lateral;              ///< the LTB step runs
  bool webOption;            ///< stiffener options apply
  bool sectionControlFrame;  ///< the section control mode applies
  bool bendingFrame;         ///< the bending capacity mode applies
};

/// All families in the order of their codes.
std::span<const Family> AllFamilies();

/// The family's row, or nullptr for a code that does not exist.
const Family* FindFamily(int profileType);

/// The section's name as titles show it ("HEA200", "RHS 100x 100x 5", "I 600x300/12x20").
std::string SectionTitle(const ProjectState& st, const Catalogues& cat);

}  // namespace korvane
