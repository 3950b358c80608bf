// SPDX-License-Identifier: GPL-3.0-or-later
#include "front/console/design_json.h"

#include <nlohmann/json.hpp>

#include "core/input_fields.h"
#include "sections/section_fields.h"

namespace korvane {

namespace {

using nlohmann::ordered_json;

ordered_json Value(const float32& v) {
  return double(v);
}
ordered_json Value(const number& v) {
  return double(v);
}
ordered_json Value(const int16& v) {
  return int(v);
}
ordered_json Value(const std::string& v) {
  return v;
}
ordered_json Value(double v) {
  return v;
}

template <class T, int First, int Last>
ordered_json Value(const Indexed<T, First, Last>& a, int last = Last) {
  ordered_json list = ordered_json::array();
  for (int i = First; i <= last; ++i) list.push_back(Value(a[i]));
  return list;
}

ordered_json Line(const CheckLine& line) {
  return {{"label", line.label}, {"formula", line.formula}, {"numbers", line.numbers},
          {"value", line.value}, {"limit", line.limit},     {"colour", line.colour}};
}

ordered_json Analysis(const Design& d) {
  const BeamResults& b = d.beam;
  const int last = b.pt_last;
  return {{"N", Value(d.forces.N)},         {"MyAbsMax", Value(b.MyAbsMax)},
          {"MzAbsMax", Value(b.MzAbsMax)},  {"My_gov", Value(b.My_gov)},
          {"betaMy", Value(b.betaMy)},      {"betaMz", Value(b.betaMz)},
          {"MyStation", Value(b.z.M)},      {"VzStation", Value(b.z.V)},
          {"MzStation", Value(b.y.M)},      {"VyStation", Value(b.y.V)},
          {"My_max", Value(b.z.M_max)},     {"My_min", Value(b.z.M_min)},
          {"Vz_max", Value(b.z.V_max)},     {"Vz_min", Value(b.z.V_min)},
          {"Mz_max", Value(b.y.M_max)},     {"Mz_min", Value(b.y.M_min)},
          {"Vy_max", Value(b.y.V_max)},     {"Vy_min", Value(b.y.V_min)},
          {"My_q", Value(b.z.M_q)},         {"Mz_q", Value(b.y.M_q)},
          {"My_zero1", Value(b.z.M_zero1)}, {"My_zero2", Value(b.z.M_zero2)},
          {"Mz_zero1", Value(b.y.M_zero1)}, {"Mz_zero2", Value(b.y.M_zero2)},
          {"pt_first", Value(b.pt_first)},  {"pt_last", Value(b.pt_last)},
          {"pt_x", Value(b.pt_x, last)},    {"My_pt", Value(b.z.M_pt, last)},
          {"Vz_pt", Value(b.z.V_pt, last)}, {"Mz_pt", Value(b.y.M_pt, last)},
          {"Vy_pt", Value(b.y.V_pt, last)}};
}

ordered_json Deflection(const Deflections& d) {
  return {{"DeflZ", Value(d.DeflZ)},         {"DeflY", Value(d.DeflY)},
          {"DeflZ_max", Value(d.DeflZ_max)}, {"DeflZ_min", Value(d.DeflZ_min)},
          {"DeflY_max", Value(d.DeflY_max)}, {"DeflY_min", Value(d.DeflY_min)},
          {"DeflStiff", Value(d.DeflStiff)}};
}

ordered_json Ltb(const Design& d) {
  const LtbResults& l = d.ltb;
  return {{"C1", Value(l.C1)},
          {"C2", Value(l.C2)},
          {"C3", Value(l.C3)},
          {"zg", Value(l.zg)},
          {"Lk", Value(l.Lk)},
          {"Mcr", Value(l.Mcr)},
          {"lamLT", Value(l.lamLT)},
          {"chiLT", Value(l.chiLT)},
          {"chiLT_min", Value(l.chiLT_min)},
          {"Mdb", Value(l.Mdb)},
          {"Mdb_min", Value(l.Mdb_min)},
          {"LtbSegment", Value(d.st.LtbCriticalSegment)},
          {"LtbSegmentText", l.LtbSegmentText}};
}

ordered_json Buckling(const BucklingResults& b) {
  return {{"Lybar", Value(b.Lybar)},     {"Lzbar", Value(b.Lzbar)}, {"LyOverI", Value(b.LyOverI)},
          {"LzOverI", Value(b.LzOverI)}, {"Xy", Value(b.Xy)},       {"Xz", Value(b.Xz)},
          {"Xmin", Value(b.Xmin)},       {"Nyd", Value(b.Nyd)},     {"Nzd", Value(b.Nzd)},
          {"NXmin", Value(b.NXmin)},     {"ky", Value(b.ky)},       {"kz", Value(b.kz)},
          {"klt", Value(b.klt)}};
}

/// 0 where the ratios are too large for it.
double MaxIROrZero(const CheckResults& c) {
  try {
    return MaxIR(c);
  } catch (const ArithmeticFault&) {
    return 0;
  }
}

ordered_json Checks(const CheckResults& c) {
  return {{"IRsection", Value(c.IRsection)},
          {"IRvz", Value(c.IRvz)},
          {"IRvy", Value(c.IRvy)},
          {"IRlateral", Value(c.IRlateral)},
          {"IRny", Value(c.IRny)},
          {"IRnz", Value(c.IRnz)},
          {"IRcombinedY", Value(c.IRcombinedY)},
          {"IRcombinedZ", Value(c.IRcombinedZ)},
          {"ClassGoverning", Value(c.ClassGoverning)},
          {"MaxIR", Value(MaxIROrZero(c))},
          {"lineSection", Line(c.lineSection)},
          {"lineVz", Line(c.lineVz)},
          {"lineVy", Line(c.lineVy)},
          {"lineLateral", Line(c.lineLateral)},
          {"lineBucklingY", Line(c.lineBucklingY)},
          {"lineBucklingZ", Line(c.lineBucklingZ)},
          {"lineSlenderness", Line(c.lineSlenderness)}};
}

}  // namespace

std::string DesignJson(const Design& d, const std::optional<std::string>& fault) {
  ordered_json json;
  json["fault"] = fault ? ordered_json(*fault) : ordered_json(nullptr);
  ordered_json& state = json["state"];
  ForEachField(d.st, [&](const char* name, const auto& field) { state[name] = Value(field); });
  ordered_json& section = json["section"];
  ForEachSectionField(d.rec,
                      [&](const char* name, const auto& field) { section[name] = Value(field); });
  json["analysis"] = Analysis(d);
  json["deflection"] = Deflection(d.deflections);
  json["modal"] = {{"ModalMass", Value(d.modal.ModalMass)},
                   {"ModalFreq", Value(d.modal.ModalFreq)}};
  json["ltb"] = Ltb(d);
  json["buckling"] = Buckling(d.buckling);
  json["checks"] = Checks(d.checks);
  return json.dump(2, ' ', false, ordered_json::error_handler_t::replace);
}

}  // namespace korvane
