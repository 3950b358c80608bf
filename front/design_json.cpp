// SPDX-License-Identifier: GPL-3.0-or-later
#include "front/design_json.h"

#include "core/input_fields.h"
#include "front/json_writer.h"
#include "sections/profile_table.h"
#include "sections/section_fields.h"

namespace korvane {

namespace {

void Line(JsonWriter& json, const char* name, const CheckLine& line) {
  json.Object(name, [&] {
    json.Member("label", line.label);
    json.Member("formula", line.formula);
    json.Member("numbers", line.numbers);
    json.Member("value", line.value);
    json.Member("limit", line.limit);
    json.Member("colour", line.colour);
  });
}

void Analysis(JsonWriter& json, const Design& d) {
  const BeamResults& b = d.beam;
  const int last = b.pt_last;
  json.Member("N", d.forces.N);
  json.Member("MyAbsMax", b.MyAbsMax);
  json.Member("MzAbsMax", b.MzAbsMax);
  json.Member("My_gov", b.My_gov);
  json.Member("betaMy", b.betaMy);
  json.Member("betaMz", b.betaMz);
  json.Member("MyStation", b.z.M);
  json.Member("VzStation", b.z.V);
  json.Member("MzStation", b.y.M);
  json.Member("VyStation", b.y.V);
  json.Member("My_max", b.z.M_max);
  json.Member("My_min", b.z.M_min);
  json.Member("Vz_max", b.z.V_max);
  json.Member("Vz_min", b.z.V_min);
  json.Member("Mz_max", b.y.M_max);
  json.Member("Mz_min", b.y.M_min);
  json.Member("Vy_max", b.y.V_max);
  json.Member("Vy_min", b.y.V_min);
  json.Member("My_q", b.z.M_q);
  json.Member("Mz_q", b.y.M_q);
  json.Member("My_zero1", b.z.M_zero1);
  json.Member("My_zero2", b.z.M_zero2);
  json.Member("Mz_zero1", b.y.M_zero1);
  json.Member("Mz_zero2", b.y.M_zero2);
  json.Member("pt_first", b.pt_first);
  json.Member("pt_last", b.pt_last);
  json.List("pt_x", b.pt_x, last);
  json.List("My_pt", b.z.M_pt, last);
  json.List("Vz_pt", b.z.V_pt, last);
  json.List("Mz_pt", b.y.M_pt, last);
  json.List("Vy_pt", b.y.V_pt, last);
}

void Deflection(JsonWriter& json, const Deflections& d) {
  json.Member("DeflZ", d.DeflZ);
  json.Member("DeflY", d.DeflY);
  json.Member("DeflZ_max", d.DeflZ_max);
  json.Member("DeflZ_min", d.DeflZ_min);
  json.Member("DeflY_max", d.DeflY_max);
  json.Member("DeflY_min", d.DeflY_min);
  json.Member("DeflStiff", d.DeflStiff);
}

void Ltb(JsonWriter& json, const Design& d) {
  const LtbResults& l = d.ltb;
  json.Member("C1", l.C1);
  json.Member("C2", l.C2);
  json.Member("C3", l.C3);
  json.Member("zg", l.zg);
  json.Member("Lk", l.Lk);
  json.Member("Mcr", l.Mcr);
  json.Member("lamLT", l.lamLT);
  json.Member("chiLT", l.chiLT);
  json.Member("chiLT_min", l.chiLT_min);
  json.Member("Mdb", l.Mdb);
  json.Member("Mdb_min", l.Mdb_min);
  json.Member("LtbSegment", d.st.LtbCriticalSegment);
  json.Member("LtbSegmentText", l.LtbSegmentText);
}

void Buckling(JsonWriter& json, const BucklingResults& b) {
  json.Member("Lybar", b.Lybar);
  json.Member("Lzbar", b.Lzbar);
  json.Member("LyOverI", b.LyOverI);
  json.Member("LzOverI", b.LzOverI);
  json.Member("Xy", b.Xy);
  json.Member("Xz", b.Xz);
  json.Member("Xmin", b.Xmin);
  json.Member("Nyd", b.Nyd);
  json.Member("Nzd", b.Nzd);
  json.Member("NXmin", b.NXmin);
  json.Member("ky", b.ky);
  json.Member("kz", b.kz);
  json.Member("klt", b.klt);
}

/// 0 where the ratios are too large for it.
double MaxIROrZero(const CheckResults& c) {
  try {
    return MaxIR(c);
  } catch (const ArithmeticFault&) {
    return 0;
  }
}

void Checks(JsonWriter& json, const CheckResults& c) {
  json.Member("IRsection", c.IRsection);
  json.Member("IRvz", c.IRvz);
  json.Member("IRvy", c.IRvy);
  json.Member("IRlateral", c.IRlateral);
  json.Member("IRny", c.IRny);
  json.Member("IRnz", c.IRnz);
  json.Member("IRcombinedY", c.IRcombinedY);
  json.Member("IRcombinedZ", c.IRcombinedZ);
  json.Member("ClassGoverning", c.ClassGoverning);
  json.Member("MaxIR", MaxIROrZero(c));
  Line(json, "lineSection", c.lineSection);
  Line(json, "lineVz", c.lineVz);
  Line(json, "lineVy", c.lineVy);
  Line(json, "lineLateral", c.lineLateral);
  Line(json, "lineBucklingY", c.lineBucklingY);
  Line(json, "lineBucklingZ", c.lineBucklingZ);
  Line(json, "lineSlenderness", c.lineSlenderness);
}

void VerdictMembers(JsonWriter& json, const Design& d) {
  const Verdict v = VerdictOf(d);
  json.Member("standing", StandingWord(v.standing));
  json.Member("sls", ServiceabilityWord(v.sls));
  json.Member("IR", v.IR);
  json.Member("governing", GoverningLabel(v));
  json.Objects("notes", v.notes, [&](const Note& note) {
    const NoteKind& kind = KindOf(note.code);
    json.Member("code", kind.word);
    json.Member("severity", SeverityWord(kind.severity));
    json.Member("text", NoteText(note, d.lib->catalogues));
  });
}

}  // namespace

std::string DesignJson(const Design& d, const std::optional<std::string>& fault) {
  JsonWriter json;
  const auto member = [&](const char* name, const auto& field) { json.Member(name, field); };
  // Of an unknown family no section was loaded: what the record holds is another one's.
  const bool known = FindFamily(d.st.ProfileType) != nullptr;
  return json.Take([&] {
    if (fault) {
      json.Member("fault", *fault);
    } else {
      json.Member("fault", nullptr);
    }
    json.Object("verdict", [&] { VerdictMembers(json, d); });
    json.Object("state", [&] { ForEachField(d.st, member); });
    json.Object("section", [&] { ForEachSectionField(known ? d.rec : SectionRecord{}, member); });
    json.Object("analysis", [&] { Analysis(json, d); });
    json.Object("deflection", [&] { Deflection(json, known ? d.deflections : Deflections{}); });
    json.Object("modal", [&] {
      const ModalResults modal = known ? d.modal : ModalResults{};
      json.Member("ModalMass", modal.ModalMass);
      json.Member("ModalFreq", modal.ModalFreq);
    });
    json.Object("ltb", [&] { Ltb(json, d); });
    json.Object("buckling", [&] { Buckling(json, d.buckling); });
    json.Object("checks", [&] { Checks(json, d.checks); });
  });
}

}  // namespace korvane
