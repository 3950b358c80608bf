// SPDX-License-Identifier: GPL-3.0-or-later
#include "checks/compose.h"

#include "checks/column_buckling.h"
#include "core/text.h"

namespace korvane {

namespace {

Decimals F1(double v) {
  return {v, 1};
}
Decimals F2(double v) {
  return {v, 2};
}

/// "12.3/45.6".
struct Fraction {
  double a, b;
};
void Append(std::string& out, const Fraction& f) {
  korvane::Append(out, F1(f.a));
  out += '/';
  korvane::Append(out, F1(f.b));
}

/// " + 1.02*12.3/45.6".
struct FactoredTerm {
  double k, M, Md;
};
void Append(std::string& out, const FactoredTerm& t) {
  out += " + ";
  korvane::Append(out, F2(t.k));
  out += '*';
  Append(out, Fraction{t.M, t.Md});
}

/// "[12.3/45.6]^1.66", with the brackets of the line.
struct RaisedTerm {
  char open;
  Fraction fraction;
  const char* close;
  double exponent;
};
void Append(std::string& out, const RaisedTerm& t) {
  out += t.open;
  Append(out, t.fraction);
  out += t.close;
  korvane::Append(out, F2(t.exponent));
}

/// An empty line in the memory that it has.
void Clear(CheckLine& line) {
  for (std::string* text : {&line.label, &line.formula, &line.numbers, &line.value, &line.limit}) {
    text->clear();
  }
  line.ratio = 0;
  line.colour = kBlack;
}

void SetValue(CheckLine& line, double ir, int colour) {
  Compose(line.value, F2(ir));
  line.ratio = ir;
  line.colour = colour;
}

/// "  <  1.00 (0.50L; Ch 12.2.4)".
void SetPointLimit(CheckLine& line, double iufa, double x, const char* reference) {
  Compose(line.limit, "  <  ", F2(iufa), " (", F2(x), reference);
}

bool IsTube(SectionControlKind kind) {
  return kind == SectionControlKind::Tube;
}
bool IsClosed(SectionControlKind kind) {
  return kind == SectionControlKind::Hollow || IsTube(kind);
}

// Each of these words label, formula and numbers of the section line and returns the reference
// that ends its limit.

const char* WordAxial(const GoverningSection& s, SectionControlKind kind, CheckLine& line) {
  line.label = "N:";
  Compose(line.numbers, Fraction{s.N, s.Nd}, " = ");
  line.formula = IsTube(kind) ? "IR = N/Nd = " : s.N < 0 ? "IR = N/Ntd = " : "IR = N/Ncd = ";
  return IsTube(kind) ? "L; Ch 12.2.3)" : s.N < 0 ? "L; Ch 12.2.3.1)" : "L; Ch 12.2.3.2)";
}

/// One moment with its shear: axis is 'y' with Vz, or 'z' with Vy.
struct AxisTerms {
  char axis;
  const char* shear;
  double M, Mvd, Mvnd, V, Vd;
  bool Unsheared() const { return V < 0.5 * Vd; }  // at equality the label already says Mvd
  bool Sheared() const { return V > 0.5 * Vd; }
};

AxisTerms AboutY(const GoverningSection& s) {
  return {'y', "Vz", s.My, s.Mvdy, s.Mvndy, s.Vz, s.Vdz};
}
AxisTerms AboutZ(const GoverningSection& s) {
  return {'z', "Vy", s.Mz, s.Mvdz, s.Mvndz, s.Vy, s.Vdy};
}

const char* WordMoment(const AxisTerms& t, SectionControlKind kind, CheckLine& line) {
  const bool plain = t.Unsheared();
  if (IsTube(kind) && !plain) {
    Compose(line.label, 'M', t.axis, '+', t.shear, ':');
  } else {
    Compose(line.label, 'M', t.axis, ':');
  }
  Compose(line.formula, "IR = M", t.axis, plain ? "/Md" : "/Mvd", t.axis, " = ");
  Compose(line.numbers, Fraction{t.M, t.Mvd}, " = ");
  return plain ? "L; Ch 12.2.4)" : "L; Ch 12.2.7)";
}

/// The second half compares Vy with half of Vdz, and its last open-section string names My in
/// the place of Mz: both are fixed as they stand.
const char* WordBiaxial(const GoverningSection& s, SectionControlKind kind, CheckLine& line) {
  const bool first = s.Vz < 0.5 * s.Vdz;
  const bool second = s.Vy < 0.5 * s.Vdz;
  const bool closed = IsClosed(kind);
  const Fraction y{s.My, s.Mvdy};
  const Fraction z{s.Mz, s.Mvdz};
  line.label = "My+Mz:";
  if (s.exact) {
    Compose(line.formula, first ? "IR = [My/Mdy]^alfa + " : "IR = [My/Mvdy]^alfa + ",
            second ? "[Mz/Mdz]^beta = " : "[Mz/Mvdz]^beta = ");
    Compose(line.numbers, RaisedTerm{'[', y, "]^", closed ? s.alfa : 2.0}, " + ",
            RaisedTerm{closed ? '[' : '(', z, closed ? "]^" : ")^", s.beta}, " = ");
    return "L; Ch 12.2.6.)";
  }
  Compose(line.formula, first ? "IR = My/Mdy" : "IR = My/Mvdy", " + ",
          second   ? "Mz/Mdz = "
          : closed ? "Mz/Mvdz = "
                   : "My/Mvdy = ");
  Compose(line.numbers, y, " + ", z, closed ? " =  " : " = ");
  return "L; Ch 12.2.6.)";
}

constexpr const char* kAxialRef = "L; Ch 12.2.6)";
constexpr const char* kAxialShearRef = "L; Ch 12.2.6/12.2.8)";

const char* WordAxialMoment(const GoverningSection& s, const AxisTerms& t, CheckLine& line) {
  const bool sheared = t.Sheared();
  Compose(line.label, "N+M", t.axis, ':');
  if (s.exact) {
    Compose(line.formula, "IR = M", t.axis, sheared ? "/Mvnd" : "/Mnd", t.axis, " = ");
    Compose(line.numbers, Fraction{t.M, t.Mvnd}, " = ");
  } else {
    Compose(line.formula, "IR = N/Nd+M", t.axis, sheared ? "/Mvd" : "/Md", t.axis, " = ");
    Compose(line.numbers, Fraction{s.N, s.Nd}, " + ", Fraction{t.M, t.Mvd}, " = ");
  }
  return sheared ? kAxialShearRef : kAxialRef;
}

const char* WordAxialBiaxial(const GoverningSection& s, SectionControlKind kind, CheckLine& line) {
  const bool shearedZ = s.Vz > 0.5 * s.Vdz;
  const bool shearedY = s.Vy > 0.5 * s.Vdy;
  const bool closed = IsClosed(kind);
  line.label = "N+My+Mz:";
  if (s.exact) {
    const char open = closed ? '[' : '(';
    const char* const close = closed ? "]^" : ")^";
    Compose(line.formula, shearedZ ? "IR = (My/Mvndy)^alfa " : "IR = (My/Mndy)^alfa ",
            shearedY ? " + (Mz/Mvndz)^beta = " : " + (Mz/Mndz)^beta = ");
    Compose(line.numbers, RaisedTerm{open, {s.My, s.Mvndy}, close, closed ? s.alfa : 2.0}, " + ",
            RaisedTerm{open, {s.Mz, s.Mvndz}, close, s.beta}, " = ");
  } else {
    Compose(line.formula, shearedZ ? "IR = N/Nd+My/Mvdy" : "IR = N/Nd+My/Mdy",
            shearedY ? "+Mz/Mvdz = " : "+Mz/Mdz = ");
    Compose(line.numbers, Fraction{s.N, s.Nd}, " + ", Fraction{s.My, s.Mvdy}, " + ",
            Fraction{s.Mz, s.Mvdz}, " = ");
  }
  return shearedZ || shearedY ? kAxialShearRef : kAxialRef;
}

/// An angle's line, put together from the terms that act.
const char* WordAngle(const GoverningSection& s, CheckLine& line) {
  line.label.clear();
  line.formula = "IR =";
  line.numbers.clear();
  const auto term = [&](const char* label, const char* formula, const Fraction& fraction) {
    line.label += label;
    line.formula += formula;
    if (!line.numbers.empty()) line.numbers += " + ";
    Append(line.numbers, fraction);
  };
  if (s.N != 0) term("N", s.N > 0 ? " N/Ncd " : " N/Ntd ", {s.N, s.Nd});
  if (s.My != 0) term(s.N != 0 ? "+Mu" : "Mu", "Msud/Mrud", {s.My, s.Mvdy});
  if (s.Mz != 0) term("+Mv", "+Msvd/Mrvd", {s.Mz, s.Mvdz});
  line.label += ':';
  line.formula += " = ";
  line.numbers += " = ";
  return "L; Ch 12.2.3.1)";
}

const char* WordSection(const GoverningSection& s, SectionControlKind kind, CheckLine& line) {
  switch (s.term) {
    case Term::N:
      return WordAxial(s, kind, line);
    case Term::My:
      return WordMoment(AboutY(s), kind, line);
    case Term::Mz:
      return WordMoment(AboutZ(s), kind, line);
    case Term::MyMz:
      return WordBiaxial(s, kind, line);
    case Term::NMy:
      return WordAxialMoment(s, AboutY(s), line);
    case Term::NMz:
      return WordAxialMoment(s, AboutZ(s), line);
    case Term::NMyMz:
      return WordAxialBiaxial(s, kind, line);
    default:
      return WordAngle(s, line);
  }
}

void ComposeSection(const Family& family, const ProjectState& st, const LtbResults& ltb,
                    CheckResults& out) {
  const double iufa = st.iufa;
  const GoverningSection& s = out.section;
  if (s.term != Term::None) {
    CheckLine& line = out.lineSection;
    const char* const reference = WordSection(s, family.routines.sectionControl, line);
    SetValue(line, out.IRsection, CheckColour(out.IRsection, iufa));
    SetPointLimit(line, iufa, s.x, reference);
  }
  const auto force = [](CheckLine& line, const GoverningForce& g, const char* label,
                        const char* formula, double ir) {
    line.label = label;
    line.formula = formula;
    Compose(line.numbers, Fraction{g.acting, g.capacity}, " = ");
    SetValue(line, ir, g.fails ? kRed : kGreen);
  };
  const auto shear = [&](CheckLine& line, const GoverningForce& g, const char* label,
                         const char* formula) {
    if (!g.set) return;
    force(line, g, label, formula, g.acting / g.capacity);
    SetPointLimit(line, iufa, g.x, "L; Ch 12.2.5)");
  };
  shear(out.lineVz, out.Vz, "Vz:", "IR = Vz/Vdz = ");
  shear(out.lineVy, out.Vy, "Vy:", "IR = Vy/Vdy = ");
  if (out.lateral.set) {
    force(out.lineLateral, out.lateral, "Lateral:", "IR = My/Mdb = ", out.IRlateral);
    if (st.LtbSegments == 0) {
      Compose(out.lineLateral.limit, "  <  ", F2(iufa), " (Ch 12.3.4.1)");
    } else {
      Compose(out.lineLateral.limit, "  <  ", F2(iufa), " (", ltb.LtbSegmentText,
              ";  (Ch 12.3.4.1))");
    }
  }
}

/// What the lines of column buckling are put together from.
struct BucklingNumbers {
  const ProjectState& st;
  const SectionRecord& rec;
  const BeamResults& beam;
  const BucklingResults& b;
  const CheckResults& out;
  double N;
  double Xlt;
  BucklingKind kind;

  /// N "/(" X "*" Ncrd ")".
  void SetAxial(CheckLine& line, double X) const {
    Compose(line.numbers, F1(N), "/(", F2(X), '*', F1(rec.Ncrd), ')');
  }
  /// Value and limit, and the signs of equality before them.
  void Finish(CheckLine& line, double ir, const char* clause,
              const char* compared = "  <  ") const {
    line.numbers += " = ";
    SetValue(line, ir, CheckColour(ir, st.iufa));
    Compose(line.limit, compared, F2(st.iufa), clause);
  }
};

constexpr const char* kPureClause = " (Ch 12.3.2.1)";
constexpr const char* kCombinedClause = " (Ch 12.3.4.2)";

struct PureWords {
  const char *label, *formula;
};
PureWords WordsOf(BucklingText text) {
  switch (text) {
    case BucklingText::PureZ:
      return {"Nz:", "IR = Nf/(Xz*Nd) = "};
    case BucklingText::PureU:
      return {"Nu:", "IR = N/(Xu*Ncd) = "};
    case BucklingText::PureV:
      return {"Nv:", "IR = N/(Xv*Nd) = "};
    default:
      return {"Ny:", "IR = Nf/(Xy*Nd) = "};
  }
}

void ComposePure(const BucklingNumbers& n, BucklingText text, CheckLine& line) {
  const bool first = text == BucklingText::PureY || text == BucklingText::PureU;
  const PureWords words = WordsOf(text);
  line.label = words.label;
  line.formula = words.formula;
  n.SetAxial(line, first ? n.b.Xy : n.b.Xz);
  // Tubes, T sections and angles print the limit of the second axis without its "<", T sections
  // the first without the figure.
  const bool bare = !first && (n.kind == BucklingKind::T || n.kind == BucklingKind::Tube ||
                               n.kind == BucklingKind::Angle);
  n.Finish(line, first ? n.out.IRny : n.out.IRnz, kPureClause, bare ? " " : "  <  ");
  if (first && n.kind == BucklingKind::T) Compose(line.limit, ' ', kPureClause);
}

void ComposeCombined(const BucklingNumbers& n, CheckLine& line) {
  const bool angle = n.kind == BucklingKind::Angle;
  const double first = angle ? n.out.Mu : double(n.beam.MyAbsMax);
  const double second = angle ? n.out.Mv : double(n.beam.MzAbsMax);
  line.label = angle ? "N+Mu+Mv:" : "N+My+Mz:";
  line.formula = "IR = N/(Xmin*Nd) ";
  n.SetAxial(line, n.b.Xmin);
  if (first != 0) {
    line.formula += angle ? " + ku*Mu/Mud " : " + ky*My/Mdy ";
    Append(line.numbers, FactoredTerm{n.b.ky, first, angle ? n.out.Mud : double(n.rec.Mdy)});
  }
  if (second != 0) {
    line.formula += angle ? " +  kv*Mv/Mvd " : " +  kz*Mz/Mdz ";
    Append(line.numbers, FactoredTerm{n.b.kz, second, angle ? n.out.Mvd : double(n.rec.Mdz)});
  }
  line.formula += " = ";
  const bool inZ = angle || n.kind == BucklingKind::Tube;
  n.Finish(line, inZ ? n.out.IRcombinedZ : n.out.IRcombinedY, kCombinedClause);
}

void ComposeLateral(const BucklingNumbers& n, bool single, CheckLine& line) {
  line.label = single ? "N+My:" : "N+My+Mz:";
  line.formula = "IR = N/(Xz*Nd) + klt*My/Mdy/Xlt ";
  n.SetAxial(line, n.b.Xz);
  Append(line.numbers, FactoredTerm{n.b.klt, n.beam.MyAbsMax, n.rec.Mdy});
  line.numbers += '/';
  korvane::Append(line.numbers, F2(n.Xlt));
  if (!single && n.beam.MzAbsMax != 0) {
    line.formula += " +  kz*Mz/Mdz ";
    Append(line.numbers, FactoredTerm{n.b.kz, n.beam.MzAbsMax, n.rec.Mdz});
  }
  line.formula += " = ";
  n.Finish(line, n.out.IRcombinedZ, kCombinedClause);
}

void ComposeSingleCombined(const BucklingNumbers& n, CheckLine& line) {
  line.label = "N+My:";
  line.formula = "IR = N/(Xmin*Nd)  + ky*My/Mdy  = ";
  n.SetAxial(line, n.b.Xmin);
  Append(line.numbers, FactoredTerm{n.b.ky, n.beam.MyAbsMax, n.rec.Mdy});
  n.Finish(line, n.out.IRcombinedY, kCombinedClause);
}

void ComposeBuckling(const BucklingNumbers& n, BucklingText text, CheckLine& line) {
  switch (text) {
    case BucklingText::None:
      return Clear(line);
    case BucklingText::Combined:
    case BucklingText::CombinedAngle:
      return ComposeCombined(n, line);
    case BucklingText::Lateral:
      return ComposeLateral(n, false, line);
    case BucklingText::SingleLateral:
      return ComposeLateral(n, true, line);
    case BucklingText::SingleCombined:
      return ComposeSingleCombined(n, line);
    default:
      return ComposePure(n, text, line);
  }
}

}  // namespace

void ClearLines(CheckResults& out) {
  for (CheckLine* line : {&out.lineSection, &out.lineVz, &out.lineVy, &out.lineLateral,
                          &out.lineBucklingY, &out.lineBucklingZ, &out.lineSlenderness}) {
    Clear(*line);
  }
}

void ComposeLines(const CheckedMember& m, const SectionRecord& rec, const SectionForces& f,
                  const BucklingResults& b, CheckResults& out) {
  if (m.family.routines.sectionControl == SectionControlKind::None) return ClearLines(out);
  Clear(out.lineSection);
  Clear(out.lineVz);
  Clear(out.lineVy);
  Clear(out.lineLateral);
  ComposeSection(m.family, m.st, m.ltb, out);
  if (!out.bucklingRan) return;
  const BucklingKind kind = m.family.routines.buckling;
  const BucklingNumbers n{m.st, rec, m.beam, b, out, f.N, LateralReduction(m.st, m.ltb), kind};
  ComposeBuckling(n, out.textY, out.lineBucklingY);
  ComposeBuckling(n, out.textZ, out.lineBucklingZ);
  Clear(out.lineSlenderness);
  if (out.slenderness) {
    const bool angle = kind == BucklingKind::Angle;
    out.lineSlenderness.label = angle ? "Slenderness: U/V-axis: " : "Slenderness: Y/Z-axis: ";
    out.lineSlenderness.formula = out.lineSlenderness.label + " L/i = ";
  }
}

}  // namespace korvane
