// SPDX-License-Identifier: GPL-3.0-or-later
// Visits every number and every text that a calculation leaves, for tests over all results.
#pragma once

#include <string>
#include <type_traits>

#include "checks/results.h"
#include "core/calculation.h"
#include "core/input_fields.h"
#include "sections/profile_table.h"
#include "sections/section_fields.h"
#include "sections/shown_values.h"

namespace korvane {

namespace walk {

template <class T>
struct IsArray : std::false_type {};
template <class T, int First, int Last>
struct IsArray<Indexed<T, First, Last>> : std::true_type {};

/// Hands numbers to one visitor and texts to another.
template <class Number, class Text>
struct Visit {
  Number& number;
  Text& text;
  template <class T>
  void operator()(const char* name, const T& value) {
    if constexpr (std::is_same_v<T, std::string>) {
      text(name, value);
    } else if constexpr (IsArray<T>::value) {
      for (const auto& element : value) number(name, double(element));
    } else {
      number(name, double(value));
    }
  }
};

template <class V>
void Plane(V& visit, const PlaneForces& p) {
  visit("M", p.M);
  visit("V", p.V);
  visit("M_max", p.M_max);
  visit("M_min", p.M_min);
  visit("V_max", p.V_max);
  visit("V_min", p.V_min);
  visit("M_q", p.M_q);
  visit("M_zero1", p.M_zero1);
  visit("M_zero2", p.M_zero2);
  visit("M_pt", p.M_pt);
  visit("V_pt", p.V_pt);
}

template <class V>
void Analysis(V& visit, const Design& d) {
  Plane(visit, d.beam.z);
  Plane(visit, d.beam.y);
  visit("pt_x", d.beam.pt_x);
  visit("pt_first", d.beam.pt_first);
  visit("pt_last", d.beam.pt_last);
  visit("betaMy", d.beam.betaMy);
  visit("betaMz", d.beam.betaMz);
  visit("MyAbsMax", d.beam.MyAbsMax);
  visit("MzAbsMax", d.beam.MzAbsMax);
  visit("My_gov", d.beam.My_gov);
  for (const number* force :
       {&d.forces.N, &d.forces.Ncl, &d.forces.My, &d.forces.Mz, &d.forces.Vy, &d.forces.Vz}) {
    visit("forces", *force);
  }
  visit("DeflZ", d.deflections.DeflZ);
  visit("DeflY", d.deflections.DeflY);
  visit("DeflZ_max", d.deflections.DeflZ_max);
  visit("DeflZ_min", d.deflections.DeflZ_min);
  visit("DeflY_max", d.deflections.DeflY_max);
  visit("DeflY_min", d.deflections.DeflY_min);
  visit("DeflStiff", d.deflections.DeflStiff);
  visit("ModalMass", d.modal.ModalMass);
  visit("ModalFreq", d.modal.ModalFreq);
}

template <class V>
void Stability(V& visit, const Design& d) {
  const LtbResults& l = d.ltb;
  for (const number* value : {&l.C1, &l.C2, &l.C3, &l.zg, &l.Lk, &l.Mcr, &l.lamLT, &l.chiLT,
                              &l.chiLT_min, &l.Mdb, &l.Mdb_min}) {
    visit("ltb", *value);
  }
  visit("LtbSegmentText", l.LtbSegmentText);
  const BucklingResults& b = d.buckling;
  for (const number* value : {&b.Lybar, &b.Lzbar, &b.LyOverI, &b.LzOverI, &b.Xy, &b.Xz, &b.Xmin,
                              &b.Nyd, &b.Nzd, &b.NXmin, &b.ky, &b.kz, &b.klt}) {
    visit("buckling", *value);
  }
}

template <class V>
void Checks(V& visit, const Design& d) {
  const CheckResults& c = d.checks;
  for (const number* ratio : {&c.IRsection, &c.IRvz, &c.IRvy, &c.IRlateral, &c.IRny, &c.IRnz,
                              &c.IRcombinedY, &c.IRcombinedZ}) {
    visit("ratio", *ratio);
  }
  visit("ClassGoverning", c.ClassGoverning);
  const GoverningSection& s = c.section;
  for (const double value : {s.x, s.N, s.Nd, s.My, s.Mz, s.Mvdy, s.Mvdz, s.Mvndy, s.Mvndz, s.alfa,
                             s.beta, s.Vz, s.Vy, s.Vdz, s.Vdy}) {
    visit("governing", value);
  }
  for (const GoverningForce* force : {&c.Vz, &c.Vy, &c.lateral}) {
    visit("governing S", force->acting);
    visit("governing Sd", force->capacity);
    visit("governing x", force->x);
  }
  for (const double value : {c.Mu, c.Mv, c.Mud, c.Mvd}) visit("angle", value);
  for (const double value : c.cornerIR) visit("corner", value);
  for (const CheckLine* line : {&c.lineSection, &c.lineVz, &c.lineVy, &c.lineLateral,
                                &c.lineBucklingY, &c.lineBucklingZ, &c.lineSlenderness}) {
    visit("label", line->label);
    visit("formula", line->formula);
    visit("numbers", line->numbers);
    visit("value", line->value);
    visit("limit", line->limit);
    visit("colour", line->colour);
  }
}

template <class V>
void View(V& visit, const korvane::View& view) {
  for (const ViewLine& line : view) {
    for (const TextRun& run : line.runs) visit("view", run.text);
  }
}

/// The texts that are put together for reading: titles, shown values, result views.
template <class V>
void Shown(V& visit, const Design& d) {
  visit("title", SectionTitle(d.st, d.lib->catalogues));
  for (const ShownValues& values :
       {Dimensions(d.st, d.rec), Properties(d.st, d.rec), Capacities(d.st, d.rec)}) {
    for (const ShownValue& value : values) visit("shown", std::string(value.text));
  }
  View(visit, SectionControlShort(d.st, d.checks));
  View(visit, BucklingShort(d.st, d.checks, d.buckling));
}

}  // namespace walk

/// Calls number(name, double) and text(name, string) for all that stands in the design: state,
/// section record, forces, deflections, checks with their lines. shown: the views as well.
template <class Number, class Text>
void ForEachResult(const Design& d, bool shown, Number&& number, Text&& text) {
  walk::Visit<std::remove_reference_t<Number>, std::remove_reference_t<Text>> visit{number, text};
  ForEachField(d.st, visit);
  ForEachSectionField(d.rec, visit);
  walk::Analysis(visit, d);
  walk::Stability(visit, d);
  walk::Checks(visit, d);
  if (shown) walk::Shown(visit, d);
}

}  // namespace korvane
