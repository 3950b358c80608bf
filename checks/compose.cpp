// SPDX-License-Identifier: GPL-3.0-or-later
#include "checks/compose.h"

#include "checks/column_buckling.h"
#include "core/text.h"

namespace korvane {

namespace {

std::string F1(double v) {
  return Format(v, "0.0");
}
std::string F2(double v) {
  return Format(v, "0.00");
}

std::string Fraction(double a, double b) {
  return F1(a) + "/" + F1(b);
}

/// "  <  1.00 (0.50L; Ch 12.2.4)".
std::string PointLimit(double iufa, double x, const char* reference) {
  return "  <  " + F2(iufa) + " (" + F2(x) + reference;
}

void SetLine(CheckLine& line, std::string label, std::string formula, std::string numbers,
             double ir, std::string limit, int colour) {
  line.label = std::move(label);
  line.formula = std::move(formula);
  line.numbers = std::move(numbers);
  line.value = F2(ir);
  line.limit = std::move(limit);
  line.colour = colour;
}

/// Wording of the section line.
struct Wording {
  std::string label, formula, numbers;
  const char* reference;
};

bool IsTube(SectionControlKind kind) {
  return kind == SectionControlKind::Tube;
}
bool IsClosed(SectionControlKind kind) {
  return kind == SectionControlKind::Hollow || IsTube(kind);
}

Wording AxialWording(const GoverningSection& s, SectionControlKind kind) {
  const std::string numbers = Fraction(s.N, s.Nd) + " = ";
  if (IsTube(kind)) return {"N:", "IR = N/Nd = ", numbers, "L; Ch 12.2.3)"};
  if (s.N < 0) return {"N:", "IR = N/Ntd = ", numbers, "L; Ch 12.2.3.1)"};
  return {"N:", "IR = N/Ncd = ", numbers, "L; Ch 12.2.3.2)"};
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

Wording MomentWording(const AxisTerms& t, SectionControlKind kind) {
  const std::string M = std::string("M") + t.axis;
  const bool plain = t.Unsheared();
  const std::string label = IsTube(kind) && !plain ? M + "+" + t.shear + ":" : M + ":";
  const std::string numbers = Fraction(t.M, t.Mvd) + " = ";
  if (plain) return {label, "IR = " + M + "/Md" + t.axis + " = ", numbers, "L; Ch 12.2.4)"};
  return {label, "IR = " + M + "/Mvd" + t.axis + " = ", numbers, "L; Ch 12.2.7)"};
}

/// The second half compares Vy with half of Vdz, and its last open-section string names My in
/// the place of Mz: both are fixed as they stand.
Wording BiaxialWording(const GoverningSection& s, SectionControlKind kind) {
  const bool first = s.Vz < 0.5 * s.Vdz;
  const bool second = s.Vy < 0.5 * s.Vdz;
  const char* reference = "L; Ch 12.2.6.)";
  if (IsClosed(kind)) {
    if (s.exact) {
      return {"My+Mz:",
              std::string(first ? "IR = [My/Mdy]^alfa + " : "IR = [My/Mvdy]^alfa + ") +
                  (second ? "[Mz/Mdz]^beta = " : "[Mz/Mvdz]^beta = "),
              "[" + Fraction(s.My, s.Mvdy) + "]^" + F2(s.alfa) + " + [" + Fraction(s.Mz, s.Mvdz) +
                  "]^" + F2(s.beta) + " = ",
              reference};
    }
    return {"My+Mz:",
            std::string(first ? "IR = My/Mdy + " : "IR = My/Mvdy + ") +
                (second ? "Mz/Mdz = " : "Mz/Mvdz = "),
            Fraction(s.My, s.Mvdy) + " + " + Fraction(s.Mz, s.Mvdz) + " =  ", reference};
  }
  if (s.exact) {
    return {"My+Mz:",
            std::string(first ? "IR = [My/Mdy]^alfa" : "IR = [My/Mvdy]^alfa") +
                (second ? " + [Mz/Mdz]^beta = " : " + [Mz/Mvdz]^beta = "),
            "[" + Fraction(s.My, s.Mvdy) + "]^2.00 + (" + Fraction(s.Mz, s.Mvdz) + ")^" +
                F2(s.beta) + " = ",
            reference};
  }
  return {"My+Mz:",
          std::string(first ? "IR = My/Mdy" : "IR = My/Mvdy") +
              (second ? " + Mz/Mdz = " : " + My/Mvdy = "),
          Fraction(s.My, s.Mvdy) + " + " + Fraction(s.Mz, s.Mvdz) + " = ", reference};
}

constexpr const char* kAxialRef = "L; Ch 12.2.6)";
constexpr const char* kAxialShearRef = "L; Ch 12.2.6/12.2.8)";

Wording AxialMomentWording(const GoverningSection& s, const AxisTerms& t) {
  const std::string M = std::string("M") + t.axis;
  const bool sheared = t.Sheared();
  const char* reference = sheared ? kAxialShearRef : kAxialRef;
  const std::string label = "N+" + M + ":";
  if (s.exact) {
    return {label, "IR = " + M + (sheared ? "/Mvnd" : "/Mnd") + t.axis + " = ",
            Fraction(t.M, t.Mvnd) + " = ", reference};
  }
  return {label, "IR = N/Nd+" + M + (sheared ? "/Mvd" : "/Md") + t.axis + " = ",
          Fraction(s.N, s.Nd) + " + " + Fraction(t.M, t.Mvd) + " = ", reference};
}

Wording AxialBiaxialWording(const GoverningSection& s, SectionControlKind kind) {
  const bool shearedZ = s.Vz > 0.5 * s.Vdz;
  const bool shearedY = s.Vy > 0.5 * s.Vdy;
  const char* reference = shearedZ || shearedY ? kAxialShearRef : kAxialRef;
  if (!s.exact) {
    return {"N+My+Mz:",
            std::string(shearedZ ? "IR = N/Nd+My/Mvdy" : "IR = N/Nd+My/Mdy") +
                (shearedY ? "+Mz/Mvdz = " : "+Mz/Mdz = "),
            Fraction(s.N, s.Nd) + " + " + Fraction(s.My, s.Mvdy) + " + " + Fraction(s.Mz, s.Mvdz) +
                " = ",
            reference};
  }
  const std::string numbers = IsClosed(kind)
                                  ? "[" + Fraction(s.My, s.Mvndy) + "]^" + F2(s.alfa) + " + [" +
                                        Fraction(s.Mz, s.Mvndz) + "]^" + F2(s.beta) + " = "
                                  : "(" + Fraction(s.My, s.Mvndy) + ")^2.00 + (" +
                                        Fraction(s.Mz, s.Mvndz) + ")^" + F2(s.beta) + " = ";
  return {"N+My+Mz:",
          std::string(shearedZ ? "IR = (My/Mvndy)^alfa " : "IR = (My/Mndy)^alfa ") +
              (shearedY ? " + (Mz/Mvndz)^beta = " : " + (Mz/Mndz)^beta = "),
          numbers, reference};
}

/// An angle's line, put together from the terms that act.
Wording AngleWording(const GoverningSection& s) {
  Wording w{"", "IR =", "", "L; Ch 12.2.3.1)"};
  const auto term = [&w](const std::string& text) {
    w.numbers += w.numbers.empty() ? text : " + " + text;
  };
  if (s.N != 0) {
    w.label = "N";
    w.formula += s.N > 0 ? " N/Ncd " : " N/Ntd ";
    term(Fraction(s.N, s.Nd));
  }
  if (s.My != 0) {
    w.label += s.N != 0 ? "+Mu" : "Mu";
    w.formula += "Msud/Mrud";
    term(Fraction(s.My, s.Mvdy));
  }
  if (s.Mz != 0) {
    w.label += "+Mv";
    w.formula += "+Msvd/Mrvd";
    term(Fraction(s.Mz, s.Mvdz));
  }
  w.label += ":";
  w.formula += " = ";
  w.numbers += " = ";
  return w;
}

Wording SectionWording(const GoverningSection& s, SectionControlKind kind) {
  switch (s.term) {
    case Term::N:
      return AxialWording(s, kind);
    case Term::My:
      return MomentWording(AboutY(s), kind);
    case Term::Mz:
      return MomentWording(AboutZ(s), kind);
    case Term::MyMz:
      return BiaxialWording(s, kind);
    case Term::NMy:
      return AxialMomentWording(s, AboutY(s));
    case Term::NMz:
      return AxialMomentWording(s, AboutZ(s));
    case Term::NMyMz:
      return AxialBiaxialWording(s, kind);
    default:
      return AngleWording(s);
  }
}

void ComposeSection(const Family& family, const ProjectState& st, const LtbResults& ltb,
                    CheckResults& out) {
  const double iufa = st.iufa;
  const GoverningSection& s = out.section;
  if (s.term != Term::None) {
    Wording w = SectionWording(s, family.routines.sectionControl);
    SetLine(out.lineSection, std::move(w.label), std::move(w.formula), std::move(w.numbers),
            out.IRsection, PointLimit(iufa, s.x, w.reference), CheckColour(out.IRsection, iufa));
  }
  const auto shear = [iufa](CheckLine& line, const GoverningForce& g, const char* label,
                            const char* formula) {
    if (!g.set) return;
    SetLine(line, label, formula, Fraction(g.S, g.Sd) + " = ", g.S / g.Sd,
            PointLimit(iufa, g.x, "L; Ch 12.2.5)"), g.fails ? 4 : 2);
  };
  shear(out.lineVz, out.Vz, "Vz:", "IR = Vz/Vdz = ");
  shear(out.lineVy, out.Vy, "Vy:", "IR = Vy/Vdy = ");
  if (out.lateral.set) {
    const std::string where =
        st.LtbSegments == 0 ? " (Ch 12.3.4.1)" : " (" + ltb.LtbSegmentText + ";  (Ch 12.3.4.1))";
    SetLine(out.lineLateral,
            "Lateral:", "IR = My/Mdb = ", Fraction(out.lateral.S, out.lateral.Sd) + " = ",
            out.IRlateral, "  <  " + F2(iufa) + where, out.lateral.fails ? 4 : 2);
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
  std::string Axial(double X) const { return F1(N) + "/(" + F2(X) + "*" + F1(rec.Ncrd) + ")"; }
  static std::string Term(double k, double M, double Md) {
    return " + " + F2(k) + "*" + Fraction(M, Md);
  }
  std::string Limit(const char* clause) const { return "  <  " + F2(st.iufa) + clause; }
  int Colour(double ir) const { return CheckColour(ir, st.iufa); }
};

constexpr const char* kPureClause = " (Ch 12.3.2.1)";
constexpr const char* kCombinedClause = " (Ch 12.3.4.2)";

void ComposePure(const BucklingNumbers& n, BucklingText text, CheckLine& line) {
  const bool first = text == BucklingText::PureY || text == BucklingText::PureU;
  const double X = first ? n.b.Xy : n.b.Xz;
  const double ir = first ? n.out.IRny : n.out.IRnz;
  std::string limit = n.Limit(kPureClause);
  // Tubes, T sections and angles print the limit of the second axis without its "<", T sections
  // the first without the figure.
  if (first && n.kind == BucklingKind::T) {
    limit = std::string(" ") + kPureClause;
  } else if (!first && (n.kind == BucklingKind::T || n.kind == BucklingKind::Tube ||
                        n.kind == BucklingKind::Angle)) {
    limit = " " + F2(n.st.iufa) + kPureClause;
  }
  const char* label = "Ny:";
  const char* formula = "IR = Nf/(Xy*Nd) = ";
  if (text == BucklingText::PureZ) {
    label = "Nz:";
    formula = "IR = Nf/(Xz*Nd) = ";
  } else if (text == BucklingText::PureU) {
    label = "Nu:";
    formula = "IR = N/(Xu*Ncd) = ";
  } else if (text == BucklingText::PureV) {
    label = "Nv:";
    formula = "IR = N/(Xv*Nd) = ";
  }
  SetLine(line, label, formula, n.Axial(X) + " = ", ir, std::move(limit), n.Colour(ir));
}

void ComposeCombined(const BucklingNumbers& n, CheckLine& line) {
  const bool angle = n.kind == BucklingKind::Angle;
  const double first = angle ? n.out.Mu : double(n.beam.MyAbsMax);
  const double second = angle ? n.out.Mv : double(n.beam.MzAbsMax);
  std::string formula = "IR = N/(Xmin*Nd) ";
  std::string numbers = n.Axial(n.b.Xmin);
  if (first != 0) {
    formula += angle ? " + ku*Mu/Mud " : " + ky*My/Mdy ";
    numbers += BucklingNumbers::Term(n.b.ky, first, angle ? n.out.Mud : double(n.rec.Mdy));
  }
  if (second != 0) {
    formula += angle ? " +  kv*Mv/Mvd " : " +  kz*Mz/Mdz ";
    numbers += BucklingNumbers::Term(n.b.kz, second, angle ? n.out.Mvd : double(n.rec.Mdz));
  }
  const bool inZ = angle || n.kind == BucklingKind::Tube;
  const double ir = inZ ? n.out.IRcombinedZ : n.out.IRcombinedY;
  SetLine(line, angle ? "N+Mu+Mv:" : "N+My+Mz:", formula + " = ", numbers + " = ", ir,
          n.Limit(kCombinedClause), n.Colour(ir));
}

void ComposeLateral(const BucklingNumbers& n, bool single, CheckLine& line) {
  std::string formula = "IR = N/(Xz*Nd) + klt*My/Mdy/Xlt ";
  std::string numbers = n.Axial(n.b.Xz) +
                        BucklingNumbers::Term(n.b.klt, n.beam.MyAbsMax, n.rec.Mdy) + "/" +
                        F2(n.Xlt);
  if (!single && n.beam.MzAbsMax != 0) {
    formula += " +  kz*Mz/Mdz ";
    numbers += BucklingNumbers::Term(n.b.kz, n.beam.MzAbsMax, n.rec.Mdz);
  }
  SetLine(line, single ? "N+My:" : "N+My+Mz:", formula + " = ", numbers + " = ", n.out.IRcombinedZ,
          n.Limit(kCombinedClause), n.Colour(n.out.IRcombinedZ));
}

void ComposeSingleCombined(const BucklingNumbers& n, CheckLine& line) {
  SetLine(line, "N+My:", "IR = N/(Xmin*Nd)  + ky*My/Mdy  = ",
          n.Axial(n.b.Xmin) + BucklingNumbers::Term(n.b.ky, n.beam.MyAbsMax, n.rec.Mdy) + " = ",
          n.out.IRcombinedY, n.Limit(kCombinedClause), n.Colour(n.out.IRcombinedY));
}

void ComposeBuckling(const BucklingNumbers& n, BucklingText text, CheckLine& line) {
  line = {};
  switch (text) {
    case BucklingText::None:
      return;
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

void ComposeLines(const Family* family, const ProjectState& st, const SectionRecord& rec,
                  const SectionForces& f, const BeamResults& beam, const LtbResults& ltb,
                  const BucklingResults& b, CheckResults& out) {
  out.lineSection = {};
  out.lineVz = {};
  out.lineVy = {};
  out.lineLateral = {};
  if (family == nullptr || family->routines.sectionControl == SectionControlKind::None) {
    out.lineBucklingY = {};
    out.lineBucklingZ = {};
    out.lineSlenderness = {};
    return;
  }
  ComposeSection(*family, st, ltb, out);
  if (!out.bucklingRan) return;
  const BucklingNumbers n{
      st, rec, beam, b, out, f.N, LateralReduction(st, ltb), family->routines.buckling};
  ComposeBuckling(n, out.textY, out.lineBucklingY);
  ComposeBuckling(n, out.textZ, out.lineBucklingZ);
  out.lineSlenderness = {};
  if (out.slenderness) {
    const bool angle = family->routines.buckling == BucklingKind::Angle;
    out.lineSlenderness.label = angle ? "Slenderness: U/V-axis: " : "Slenderness: Y/Z-axis: ";
    out.lineSlenderness.formula = out.lineSlenderness.label + " L/i = ";
  }
}

}  // namespace korvane
