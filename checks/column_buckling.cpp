// SPDX-License-Identifier: GPL-3.0-or-later
#include "checks/column_buckling.h"

#include <algorithm>
#include <cmath>

#include "checks/buckling_curves.h"
#include "checks/section_control.h"
#include "sections/capacities.h"

namespace korvane {

double ColumnReduction(double lambda, double alfa) {
  if (!(lambda > 0.2)) return 1;
  const double phi = 0.5 * (1 + alfa * (lambda - 0.2) + lambda * lambda);
  return std::min(1 / (phi + std::sqrt(phi * phi - lambda * lambda)), 1.0);
}

double LateralReduction(const ProjectState& st, const LtbResults& ltb) {
  return st.LateralTorsionalBuckling == 0 ? 1.0 : double(ltb.chiLT_min);
}

namespace {

/// Moment factor 1 - mu*N/X/Ncrd/gammam1; gammam1 divides on top of what Ncrd holds.
double MomentFactor(const ProjectState& st, const SectionForces& f, const SectionRecord& rec,
                    double mu, double X, double most) {
  const double factor = 1 - std::min(mu, 0.9) * f.N / X / rec.Ncrd / st.gammam1;
  return std::min(factor, most);
}

void Slendernesses(const ProjectState& st, const SectionRecord& rec, BucklingResults& b) {
  const auto axis = [&](double factor, double I, number& lambda, number& geometric) {
    const double i = std::sqrt(I / rec.A);
    geometric = st.L * factor * 1000 / i;
    lambda =
        factor * 1000 * st.L / i / (std::sqrt(st.E / st.fyk) * kPiSingle) * std::sqrt(rec.betaA);
  };
  axis(st.bly, rec.Iy, b.Lybar, b.LyOverI);
  axis(st.blz, rec.Iz, b.Lzbar, b.LzOverI);
}

/// Slendernesses about u and v, made effective for an angle held at its ends.
void AngleSlendernesses(const ProjectState& st, const SectionRecord& rec, BucklingResults& b) {
  const auto axis = [&](double factor, double I, number& lambda, number& geometric) {
    const double i = std::sqrt(I / rec.A);
    geometric = st.L * factor * 1000 / i;
    const double bar =
        factor * 1000 * st.L / kPiSingle / i * std::sqrt(st.fyk / st.E) * std::sqrt(rec.betaA);
    lambda = 0.35 + 0.7 * bar;
  };
  axis(st.bly, rec.Iu, b.Lybar, b.LyOverI);
  axis(st.blz, rec.Iv, b.Lzbar, b.LzOverI);
}

void Reductions(const ProjectState& st, const SectionRecord& rec, double alfaY, double alfaZ,
                BucklingResults& b) {
  b.Xy = ColumnReduction(b.Lybar, alfaY);
  b.Xz = ColumnReduction(b.Lzbar, alfaZ);
  b.Xmin = std::min<double>(b.Xy, b.Xz);
  b.Nyd = b.Xy * rec.Ncrd;
  b.Nzd = b.Xz * rec.Ncrd;
  b.NXmin = ForceOf(st, rec.betaA * b.Xmin * rec.A);
}

/// Class and capacities for the governing moments of the whole member.
void ClassifyMember(const CheckedMember& m, const CheckResults& out, SectionForces& f,
                    SectionRecord& rec) {
  const Family& family = m.family;
  f.Ncl = f.N;
  f.My = m.beam.MyAbsMax;
  f.Mz = m.beam.MzAbsMax;
  if (family.routines.buckling == BucklingKind::T) return;
  if (family.givenConstants) rec.class_ = out.ClassGoverning;
  family.routines.bucklingClass(m.st, f, rec);
  family.routines.capacities(m.st, f, rec);
}

void MomentFactorsOf(const CheckedMember& m, bool ownKlt, const SectionForces& f,
                     const SectionRecord& rec, BucklingResults& b) {
  const auto& [family, st, beam, ltb] = m;
  const bool plastic = rec.class_ <= 2 && st.BendingCapacityMode == 0;
  const double Wely = family.routines.buckling == BucklingKind::SingleSymmetric
                          ? std::min<double>(rec.Wely1, rec.Wely2)
                          : double(rec.Wely);
  const double mu0y = plastic ? rec.Wply / Wely - 1 : 0;
  const double mu0z = plastic ? rec.Wplz / rec.Welz - 1 : 0;
  b.ky = MomentFactor(st, f, rec, b.Lybar * (2 * beam.betaMy - 4) + mu0y, b.Xy, 1.5);
  b.kz = MomentFactor(st, f, rec, b.Lzbar * (2 * beam.betaMz - 4) + mu0z, b.Xz, 1.5);
  if (ownKlt || HasKlt(family.routines.buckling)) {
    b.klt = MomentFactor(st, f, rec, 0.15 * (b.Lzbar * beam.betaMy - 1), b.Xz, 1.0);
  }
}

/// Ratios of pure compression about the axes that can buckle.
void PureCompression(const ProjectState& st, const SectionForces& f, const BucklingResults& b,
                     bool always, CheckResults& out) {
  if (always || st.bly != 0) {
    out.IRny = std::fabs(f.N / b.Nyd);
    out.textY = BucklingText::PureY;
  }
  if (always || st.blz != 0) {
    out.IRnz = std::fabs(f.N / b.Nzd);
    out.textZ = BucklingText::PureZ;
  }
}

void WithBending(const CheckedMember& m, const SectionForces& f, const SectionRecord& rec,
                 const BucklingResults& b, CheckResults& out) {
  const auto& [family, st, beam, ltb] = m;
  const BucklingKind kind = family.routines.buckling;
  const double my = beam.MyAbsMax;
  const double mz = beam.MzAbsMax;
  const double rz = mz != 0 ? b.kz * mz / rec.Mdz : 0;
  const double ry = my != 0 ? b.ky * my / rec.Mdy : 0;
  const double combined = std::fabs(f.N / b.NXmin) + ry + rz;
  out.textY = BucklingText::Combined;
  if (kind == BucklingKind::Tube) {
    out.IRcombinedZ = combined;  // the text goes to the first line all the same
    return;
  }
  out.IRcombinedY = combined;
  if (kind == BucklingKind::DoubleSymmetric && st.LateralBucklingCase != 6 && my != 0) {
    out.IRcombinedZ =
        std::fabs(f.N / b.Nzd) + b.klt * my / rec.Mdy / LateralReduction(st, ltb) + rz;
    out.textZ = BucklingText::Lateral;
  }
}

/// Singly symmetric sections show the z axis alone and, in the second line, the last of the two
/// ratios with bending; klt is what the last doubly symmetric calculation left.
void SingleWithBending(const CheckedMember& m, const SectionForces& f, const SectionRecord& rec,
                       const BucklingResults& b, CheckResults& out) {
  const auto& [family, st, beam, ltb] = m;
  const double my = beam.MyAbsMax;
  if (st.blz != 0) {
    out.IRnz = std::fabs(f.N / b.Nzd);
    out.textY = BucklingText::PureZ;
  }
  out.IRcombinedY = std::fabs(f.N / b.NXmin) + b.ky * my / rec.Mdy;
  out.textZ = BucklingText::SingleCombined;
  if (st.LateralBucklingCase != 6) {
    out.IRcombinedZ = std::fabs(f.N / b.Nzd) + b.klt * my / rec.Mdy / LateralReduction(st, ltb);
    out.textZ = BucklingText::SingleLateral;
  }
}

void AngleControl(const ProjectState& st, const BeamResults& beam, const SectionForces& f,
                  const SectionRecord& rec, BucklingResults& b, CheckResults& out) {
  const auto [Mu, Mv] = ToPrincipal(beam.MyAbsMax, beam.MzAbsMax, rec.alfadeg);
  out.Mu = std::fabs(Mu);
  out.Mv = std::fabs(Mv);
  out.Mud = std::min<double>(rec.Mud1, rec.Mud3);
  out.Mvd = std::min({double(rec.Mvd1), double(rec.Mvd2), double(rec.Mvd3)});
  b.ky = MomentFactor(st, f, rec, b.Lybar * (2 * beam.betaMy - 4), b.Xy, 1.5);
  b.kz = MomentFactor(st, f, rec, b.Lzbar * (2 * beam.betaMz - 4), b.Xz, 1.5);
  if (out.Mu == 0 && out.Mv == 0) {
    out.IRny = std::fabs(f.N / b.Nyd);
    out.textY = BucklingText::PureU;
    const double v = std::fabs(f.N / b.Nzd);
    if (v > out.IRnz) {
      out.IRnz = v;
      out.textZ = BucklingText::PureV;
    }
    return;
  }
  const double ru = out.Mu != 0 ? std::fabs(b.ky * out.Mu / out.Mud) : 0;
  const double rv = out.Mv != 0 ? std::fabs(b.kz * out.Mv / out.Mvd) : 0;
  out.IRcombinedZ = std::fabs(f.N / b.NXmin) + ru + rv;
  out.textY = BucklingText::CombinedAngle;
}

}  // namespace

void BucklingControl(const CheckedMember& m, SectionForces& f, SectionRecord& rec,
                     BucklingResults& b, CheckResults& out) {
  BucklingControlWith({m.st.BucklingCurveY, m.st.BucklingCurveZ, false}, m, f, rec, b, out);
}

void BucklingControlWith(const BucklingChoice& choice, const CheckedMember& m, SectionForces& f,
                         SectionRecord& rec, BucklingResults& b, CheckResults& out) {
  const ProjectState& st = m.st;
  const BeamResults& beam = m.beam;
  out.bucklingRan = true;
  out.textY = BucklingText::None;
  out.textZ = BucklingText::None;
  out.slenderness = st.check_slend == 1 && (st.bly != 0 || st.blz != 0);

  const BucklingKind kind = m.family.routines.buckling;
  if (kind == BucklingKind::Angle) {
    AngleSlendernesses(st, rec, b);
    Reductions(st, rec, AngleImperfectionFactor(choice.curveY),
               AngleImperfectionFactor(choice.curveZ), b);
    AngleControl(st, beam, f, rec, b, out);
    return;
  }

  ClassifyMember(m, out, f, rec);
  Slendernesses(st, rec, b);
  Reductions(st, rec, ImperfectionFactor(choice.curveY), ImperfectionFactor(choice.curveZ), b);
  MomentFactorsOf(m, choice.ownKlt, f, rec, b);
  const bool bendY = beam.MyAbsMax != 0;
  const bool bendZ = beam.MzAbsMax != 0;
  switch (kind) {
    case BucklingKind::T:
      return PureCompression(st, f, b, false, out);
    case BucklingKind::SingleSymmetric:
      return bendY ? SingleWithBending(m, f, rec, b, out) : PureCompression(st, f, b, false, out);
    default:
      return bendY || bendZ ? WithBending(m, f, rec, b, out)
                            : PureCompression(st, f, b, kind == BucklingKind::Tube, out);
  }
}

}  // namespace korvane
