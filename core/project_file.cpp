// SPDX-License-Identifier: GPL-3.0-or-later
// The sequence of the project file, stated once for reading and writing.
#include "core/project_file.h"

#include <algorithm>
#include <iterator>

#include "core/field_io.h"
#include "core/files.h"

namespace korvane {
namespace {

constexpr int kVersion = 390;
constexpr int kLastOldVersion = 260;

class ProjectReader : public FieldReader {
public:
  using FieldReader::FieldReader;
  void Version() {
    int16 version;
    (*this)(version);
    old_ = version <= kLastOldVersion;
  }
  /// True while a file of the old format is read.
  bool Old() const { return old_; }

private:
  bool old_ = false;
};

class ProjectWriter : public FieldWriter {
public:
  void Version() { (*this)(int16(kVersion)); }
  constexpr bool Old() const { return false; }
};

// What the file holds of one section family.
template <class Io, class State>
struct Payload {
  int profileType;
  bool inOldFormat;
  void (*walk)(Io& io, State& st);
};

// clang-format off
template <class Io, class State>
constexpr Payload<Io, State> kPayloads[] = {
    {1, true, [](Io& io, State& st) { io(st.idxHEA); }},
    {2, true, [](Io& io, State& st) { io(st.idxHEB); }},
    {3, true, [](Io& io, State& st) { io(st.idxHEM); }},
    {4, true, [](Io& io, State& st) { io(st.idxIPE); }},
    {5, true, [](Io& io, State& st) { io(st.idxUPE); }},
    {6, true, [](Io& io, State& st) { io(st.idxRHSs); }},
    {7, true, [](Io& io, State& st) { io(st.idxRHSr); }},
    {8, true, [](Io& io, State& st) { io(st.idxCFRHSs); }},
    {9, true, [](Io& io, State& st) { io(st.idxCFRHSr); }},
    {10, true, [](Io& io, State& st) { io(st.idxLeq); }},
    {11, true, [](Io& io, State& st) { io(st.idxLuneq); }},
    {15, false, [](Io& io, State& st) { io(st.idxINP); }},
    {16, false, [](Io& io, State& st) { io(st.idxUNP); }},
    {21, true, [](Io& io, State& st) { io(st.p21_h, st.p21_b, st.p21_tw, st.p21_tf); }},
    {22, true, [](Io& io, State& st) {
       io(st.p22_h, st.p22_b, st.p22_b2, st.p22_tw, st.p22_tf1, st.p22_tf2);
     }},
    {23, true, [](Io& io, State& st) {
       io(st.p23_h, st.p23_b, st.p23_tw, st.p23_tf, st.p23_a, st.BoxWeld);
     }},
    {24, true, [](Io& io, State& st) {
       io(st.p24_h, st.p24_b, st.p24_tw, st.p24_tf1, st.p24_tf2, st.p24_a, st.p24_c, st.p24_load);
     }},
    {25, true, [](Io& io, State& st) {
       io(st.p25_h, st.p25_b1, st.p25_b2, st.p25_tw, st.p25_tf1, st.p25_tf2, st.p25_a, st.p25_c);
     }},
    {26, false, [](Io& io, State& st) { io(st.p26_h, st.p26_b, st.p26_tw, st.p26_tf); }},
    {27, false, [](Io& io, State& st) {
       io(st.p27_h, st.p27_b1, st.p27_b2, st.p27_tw, st.p27_tf1, st.p27_tf2, st.p27_a);
       io.Spare();
       io.Spare();
     }},
    {31, true, [](Io& io, State& st) { io(st.p31_d, st.p31_tw, st.TubeKind); }},
    {41, true, [](Io& io, State& st) {
       io.Quoted(st.p41_name);
       io(st.p41_option, st.p41_A, st.p41_Az, st.p41_Ay, st.p41_Ix, st.p41_Iy, st.p41_Iz,
          st.p41_Iw, st.p41_Wely, st.p41_Welz, st.p41_Wply, st.p41_Wplz);
     }},
    {51, false, [](Io& io, State& st) { io(st.p51_h, st.p51_b, st.p51_tw, st.p51_tf1); }},
    {52, false, [](Io& io, State& st) { io(st.p52_index, st.p52_b1, st.p52_t1); }},
    {53, false, [](Io& io, State& st) {
       io(st.p53_h, st.p53_b1, st.p53_b2, st.p53_tw, st.p53_tf1, st.p53_tf2);
     }},
    {54, false, [](Io& io, State& st) { io(st.p54_index, st.p54_b1, st.p54_t1); }},
    {55, false, [](Io& io, State& st) {
       io(st.p55_h, st.p55_b1, st.p55_b2, st.p55_tw, st.p55_tf1, st.p55_a);
     }},
    {56, false, [](Io& io, State& st) {
       io(st.p56_h, st.p56_b1, st.p56_b2, st.p56_tw, st.p56_tf1, st.p56_tf2);
     }},
    {101, false, [](Io& io, State& st) {
       io(st.p101_sub);
       if (st.p101_sub == 1) io(st.p101_idx1);
       if (st.p101_sub == 2) io(st.p101_idx2);
       if (st.p101_sub == 3) io(st.p101_idx3);
     }},
    {102, false, [](Io& io, State& st) { io(st.p102_idx); }},
    {103, false, [](Io& io, State& st) {
       io(st.p103_sub);
       if (st.p103_sub == 1) io(st.p103_idx1);
       if (st.p103_sub == 2) io(st.p103_idx2);
     }},
};
// clang-format on

template <class Io, class State>
void WalkHead(Io& io, State& st) {
  io.Version();
  if (io.Old()) {
    io.Quoted(st.iproj);
    io.Quoted(st.iident);
  } else {
    io.Text(st.iproj);
    io.Text(st.iident);
  }
  io(st.MaterialIndex, st.RhsOrientation, st.gammam1, st.BendingCapacityMode, st.SectionControlMode,
     st.EndStiffener, st.WebStiffener, st.BucklingCurveY, st.BucklingCurveZ,
     st.ManualBucklingCurves, st.BucklingCaseY, st.BucklingCaseZ, st.HsqKind);
  if (!io.Old()) io(st.IgnoreWebBuckling, st.IgnoreFlangeBuckling, st.ModalAnalysis);
  io(st.fyk, st.E, st.lfp_uls, st.lfv1_uls);
  if (!io.Old()) io(st.lfv2_uls);
  io(st.lfp_sls, st.lfv1_sls);
  if (!io.Old()) io(st.lfv2_sls);
  io(st.lfsw_uls, st.SupportType, st.SpringRestraint, st.AnalysisMode, st.LoadLevel,
     st.LateralTorsionalBuckling, st.LateralBucklingCase, st.LtbSegments, st.LtbCriticalSegment,
     st.CFactorManual, st.C1i, st.C2i, st.C3i, st.L, st.a_webstiff, st.k_ltb, st.bly, st.blz);
}

template <class Io, class State>
void WalkLoads(Io& io, State& st) {
  io(st.NP, st.NV1);
  if (!io.Old()) io(st.NV2);
  io(st.q1, st.q1_pv, st.q1_yz, st.q2, st.q2_pv, st.q2_yz);
  io(st.q3, st.q3_pv, st.q3_yz, st.q4, st.q4_pv, st.q4_yz);
  io(st.qt1_1, st.qt1_2, st.qt1_x1, st.qt1_x2, st.qt1_pv, st.qt1_yz);
  io(st.qt2_1, st.qt2_2, st.qt2_x1, st.qt2_x2, st.qt2_pv, st.qt2_yz);
  if (!io.Old()) io(st.qt3_1, st.qt3_2, st.qt3_x1, st.qt3_x2, st.qt3_pv, st.qt3_yz);
  for (int i = 1; i <= st.pm.size(); ++i) {
    io(st.pm_pm[i], st.pm[i], st.pmx[i], st.pm_pv[i], st.pm_yz[i]);
  }
}

template <class Io, class State>
void WalkEndForces(Io& io, State& st) {
  io(st.Ne);
  for (auto* const ends : {&st.My_end, &st.Vy_end, &st.Mz_end, &st.Vz_end}) {
    io((*ends)[1], (*ends)[2]);
    // The old format has a third value, which takes the place of the second.
    if (io.Old()) io((*ends)[2]);
  }
}

template <class Io, class State>
void WalkPayload(Io& io, State& st) {
  const auto& payloads = kPayloads<Io, State>;
  const auto row = std::find_if(std::begin(payloads), std::end(payloads), [&](const auto& p) {
    return p.profileType == st.ProfileType && (p.inOldFormat || !io.Old());
  });
  if (row != std::end(payloads)) row->walk(io, st);
}

template <class Io, class State>
void WalkProject(Io& io, State& st) {
  WalkHead(io, st);
  if (st.AnalysisMode == 1) WalkLoads(io, st);
  if (st.AnalysisMode == 0) WalkEndForces(io, st);
  io(st.ProfileType);
  WalkPayload(io, st);
  io(st.SelfWeight, st.cp_mode, st.cp_count, st.cp_x[1], st.cp_x[2], st.cp_x[3], st.Za,
     st.islend_limit, st.check_slend);
}

// The fields that the old format lacks.
void SetFieldsOfNoOldFile(ProjectState& st) {
  st.IgnoreFlangeBuckling = 0;
  st.IgnoreWebBuckling = 0;
  st.NV2 = 0.0;
  st.lfv2_uls = 1.0;
  st.lfv2_sls = 1.0;
  st.qt3_1 = 0.0;
  st.qt3_2 = 0.0;
  st.qt3_x1 = 0.0;
  st.qt3_x2 = 0.0;
  st.qt3_pv = 0;
  st.qt3_yz = 1;
}

}  // namespace

FileResult ReadProject(std::string_view bytes, ProjectState& st) {
  ProjectReader reader(bytes);
  try {
    WalkProject(reader, st);
  } catch (const PastEnd&) {
    return FileResult::TooShort;
  } catch (const ArithmeticFault&) {
    return FileResult::OtherError;
  }
  if (reader.Old()) SetFieldsOfNoOldFile(st);
  return FileResult::Ok;
}

std::string ProjectText(const ProjectState& st) {
  ProjectWriter writer;
  writer.Reserve(1024);
  WalkProject(writer, st);
  return writer.Take();
}

FileResult OpenProject(const std::string& path, ProjectState& st) {
  bool notFound = false;
  const auto bytes = ReadWholeFile(path, &notFound);
  if (!bytes) return notFound ? FileResult::NotFound : FileResult::OtherError;
  return ReadProject(*bytes, st);
}

WriteResult SaveProject(const std::string& path, const ProjectState& st, const WriteRules& rules) {
  return WriteFile(path, ProjectText(st), rules);
}

}  // namespace korvane
