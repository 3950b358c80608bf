// SPDX-License-Identifier: GPL-3.0-or-later
// The sequence of the project file, stated once for reading and writing.
#include "core/project_file.h"

#include <algorithm>
#include <iterator>
#include <type_traits>

#include "core/field_io.h"
#include "core/files.h"
#include "core/fixed_list.h"
#include "core/state_field.h"

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

using S = ProjectState;

/// Whether files of the old format hold the fields too.
enum class OldFormat { HasThem, LacksThem };

/// What the file holds of one section family: its fields in the file's own order.
struct Payload {
  int profileType;
  OldFormat old;
  FixedList<StateField, 13> fields{};
  /// Of a family with sub-families: the row's field by the sub-family, which the first field
  /// tells and which counts from 1.
  FixedList<int16 S::*, 3> bySub{};
  int spares = 0;  ///< num lines behind them that belong to no field
};

constexpr OldFormat kAlways = OldFormat::HasThem;
constexpr OldFormat kNotInOldFormat = OldFormat::LacksThem;

constexpr Payload kPayloads[] = {
    {1, kAlways, {&S::idxHEA}},
    {2, kAlways, {&S::idxHEB}},
    {3, kAlways, {&S::idxHEM}},
    {4, kAlways, {&S::idxIPE}},
    {5, kAlways, {&S::idxUPE}},
    {6, kAlways, {&S::idxRHSs}},
    {7, kAlways, {&S::idxRHSr}},
    {8, kAlways, {&S::idxCFRHSs}},
    {9, kAlways, {&S::idxCFRHSr}},
    {10, kAlways, {&S::idxLeq}},
    {11, kAlways, {&S::idxLuneq}},
    {15, kNotInOldFormat, {&S::idxINP}},
    {16, kNotInOldFormat, {&S::idxUNP}},
    {21, kAlways, {&S::p21_h, &S::p21_b, &S::p21_tw, &S::p21_tf}},
    {22, kAlways, {&S::p22_h, &S::p22_b, &S::p22_b2, &S::p22_tw, &S::p22_tf1, &S::p22_tf2}},
    {23, kAlways, {&S::p23_h, &S::p23_b, &S::p23_tw, &S::p23_tf, &S::p23_a, &S::BoxWeld}},
    {24,
     kAlways,
     {&S::p24_h, &S::p24_b, &S::p24_tw, &S::p24_tf1, &S::p24_tf2, &S::p24_a, &S::p24_c,
      &S::p24_load}},
    {25,
     kAlways,
     {&S::p25_h, &S::p25_b1, &S::p25_b2, &S::p25_tw, &S::p25_tf1, &S::p25_tf2, &S::p25_a,
      &S::p25_c}},
    {26, kNotInOldFormat, {&S::p26_h, &S::p26_b, &S::p26_tw, &S::p26_tf}},
    {27,
     kNotInOldFormat,
     {&S::p27_h, &S::p27_b1, &S::p27_b2, &S::p27_tw, &S::p27_tf1, &S::p27_tf2, &S::p27_a},
     {},
     2},
    {31, kAlways, {&S::p31_d, &S::p31_tw, &S::TubeKind}},
    {41,
     kAlways,
     {&S::p41_name, &S::p41_option, &S::p41_A, &S::p41_Az, &S::p41_Ay, &S::p41_Ix, &S::p41_Iy,
      &S::p41_Iz, &S::p41_Iw, &S::p41_Wely, &S::p41_Welz, &S::p41_Wply, &S::p41_Wplz}},
    {51, kNotInOldFormat, {&S::p51_h, &S::p51_b, &S::p51_tw, &S::p51_tf1}},
    {52, kNotInOldFormat, {&S::p52_index, &S::p52_b1, &S::p52_t1}},
    {53,
     kNotInOldFormat,
     {&S::p53_h, &S::p53_b1, &S::p53_b2, &S::p53_tw, &S::p53_tf1, &S::p53_tf2}},
    {54, kNotInOldFormat, {&S::p54_index, &S::p54_b1, &S::p54_t1}},
    {55, kNotInOldFormat, {&S::p55_h, &S::p55_b1, &S::p55_b2, &S::p55_tw, &S::p55_tf1, &S::p55_a}},
    {56,
     kNotInOldFormat,
     {&S::p56_h, &S::p56_b1, &S::p56_b2, &S::p56_tw, &S::p56_tf1, &S::p56_tf2}},
    {101, kNotInOldFormat, {&S::p101_sub}, {&S::p101_idx1, &S::p101_idx2, &S::p101_idx3}},
    {102, kNotInOldFormat, {&S::p102_idx}},
    {103, kNotInOldFormat, {&S::p103_sub}, {&S::p103_idx1, &S::p103_idx2}},
};

/// One field: a text in quotes, a number by its type.
template <class Io, class State>
void WalkField(Io& io, State& st, const StateField& field) {
  std::visit(
      [&](auto member) {
        if constexpr (std::is_same_v<decltype(member), std::string S::*>) {
          io.Quoted(st.*member);
        } else {
          io(st.*member);
        }
      },
      field);
}

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
  const auto row = std::find_if(std::begin(kPayloads), std::end(kPayloads),
                                [&](const Payload& p) { return p.profileType == st.ProfileType; });
  if (row == std::end(kPayloads) || (io.Old() && row->old == kNotInOldFormat)) return;
  for (const StateField& field : row->fields) WalkField(io, st, field);
  if (!row->bySub.empty()) {
    const double sub = ReadNumber(st, row->fields[0]);
    for (std::size_t k = 0; k < row->bySub.size(); ++k) {
      if (sub == static_cast<double>(k + 1)) io(st.*row->bySub[k]);
    }
  }
  for (int k = 0; k < row->spares; ++k) io.Spare();
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
  // The file knows no other length factor than its own.
  st.k_ltb_before = ProjectState().k_ltb_before;
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
