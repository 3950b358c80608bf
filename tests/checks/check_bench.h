// SPDX-License-Identifier: GPL-3.0-or-later
// A member whose forces, section values and capacities a test sets itself, so that ratios and
// texts of a check can be worked out by hand.
#pragma once

#include "analysis/beam.h"
#include "checks/check_line.h"
#include "checks/column_buckling.h"
#include "checks/compose.h"
#include "checks/section_control.h"
#include "sections/profile_table.h"

namespace korvane {

/// Class or capacity routine that leaves the record as the test set it.
inline void KeepRecord(const ProjectState&, const SectionForces&, SectionRecord&) {}

/// Forces of one calculation point, kN and kNm.
struct PointForces {
  double x, My, Vz, Mz, Vy;
};

struct CheckBench {
  Family family{};
  ProjectState st;
  SectionForces f;
  SectionRecord rec;
  BeamResults beam;
  LtbResults ltb;
  BucklingResults buckling;
  CheckResults out;

  CheckBench(int profileType, SectionControlKind control, BucklingKind kind) {
    family.code = profileType;
    if (const Family* row = FindFamily(profileType)) {
      family.lateral = row->lateral;
      family.givenConstants = row->givenConstants;
    }
    family.routines.sectionClass = KeepRecord;
    family.routines.capacities = KeepRecord;
    family.routines.bucklingClass = KeepRecord;
    family.routines.sectionControl = control;
    family.routines.buckling = kind;
    st.ProfileType = profileType;
    st.LateralTorsionalBuckling = 0;
    st.fyk = 355;
    st.gammam1 = 1.1;
    rec.class_ = 1;
    rec.Ntd = 1000;
    rec.Ncrd = 800;
    rec.Mdy = 125;
    rec.Mdz = 62.5;
    rec.Mvdy = 100;
    rec.Mvdz = 50;
    rec.Mvndy = 80;
    rec.Mvndz = 40;
    rec.alfa = 3;
    rec.beta = 1.5;
    rec.Vdz = 200;
    rec.Vdy = 300;
    beam.pt_last = -1;
  }

  void AddPoint(const PointForces& p) {
    const int i = beam.pt_last + 1;
    beam.pt_last = i;
    beam.pt_x[i] = p.x;
    beam.z.M_pt[i] = p.My;
    beam.z.V_pt[i] = p.Vz;
    beam.y.M_pt[i] = p.Mz;
    beam.y.V_pt[i] = p.Vy;
  }

  void Compose() { ComposeLines({family, st, beam, ltb}, rec, f, buckling, out); }

  void ControlSection() {
    SectionControl(family, st, beam, ltb, f, rec, out);
    Compose();
  }

  void ControlBuckling() {
    BucklingControl({family, st, beam, ltb}, f, rec, buckling, out);
    Compose();
  }
};

}  // namespace korvane
