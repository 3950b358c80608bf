// SPDX-License-Identifier: GPL-3.0-or-later
#include "sections/capacities.h"

#include <algorithm>
#include <cmath>

#include "sections/elements.h"

namespace korvane {

double MomentOf(const ProjectState& st, double W) {
  return W * st.fyk / st.gammam1 / 1E6;
}

double ForceOf(const ProjectState& st, double A) {
  return A * st.fyk / st.gammam1 / 1000;
}

double ModulusFactor(const ProjectState& st, int sectionClass, double Weff, double Wel,
                     double Wpl) {
  if (sectionClass <= 2 && st.BendingCapacityMode == 0) return 1;
  return (sectionClass == 4 ? Weff : Wel) / Wpl;
}

void AxialAndBending(const ProjectState& st, SectionRecord& rec) {
  rec.Ntd = ForceOf(st, rec.A);
  rec.betaA = rec.Aeff / rec.A;
  rec.Ncrd = ForceOf(st, rec.betaA * rec.A);
  rec.betay = ModulusFactor(st, rec.class_, rec.Weffy, rec.Wely, rec.Wply);
  rec.Mdy = MomentOf(st, rec.betay * rec.Wply);
  rec.betaz = ModulusFactor(st, rec.class_, rec.Weffz, rec.Welz, rec.Wplz);
  rec.Mdz = MomentOf(st, rec.betaz * rec.Wplz);
}

double AxialRatio(const SectionRecord& rec, const SectionForces& f) {
  return std::fabs(f.N / (f.N <= 0 ? rec.Ntd : rec.Ncrd));
}

void ShearAndAxial(const SectionForces& f, SectionRecord& rec) {
  const auto reduced = [](double V, double Vd, double Mn, double Mnpl, double Mf) {
    if (!(V > 0.5 * Vd)) return Mn;
    const double q = 2 * V / Vd - 1;
    return Mf + (Mnpl - Mf) * (1 - q * q);
  };
  rec.Mvndy = reduced(f.Vz, rec.Vdz, rec.Mndy, rec.Mndypl, rec.Mfdy);
  rec.Mvndz = reduced(f.Vy, rec.Vdy, rec.Mndz, rec.Mndzpl, rec.Mfdz);
}

void TwoFlangeInteraction(const ProjectState& st, const SectionForces& f, SectionRecord& rec) {
  rec.Mvdy = rec.Mdy;
  if (f.Vz > 0.5 * rec.Vdz) {
    const double rho = ShearShare(f.Vz, rec.Vdz);
    rec.Mvdy =
        std::min<double>(rec.Mdy, rec.Mdy - MomentOf(st, rho * rec.Avz * rec.Avz / 4 / rec.tw));
  }
  rec.Mvdz = rec.Mdz;
  if (f.Vy > 0.5 * rec.Vdy) {
    const double rho = ShearShare(f.Vy, rec.Vdy);
    const double W = 4 * std::pow(rec.b / 2, 2) * rec.tf / 2 * (1 - rho) +
                     std::pow(rec.tw / 2, 2) * (2 * rec.hw) / 2 +
                     4 * rec.r * rec.r * (1 - kPiSingle / 4) * (rec.tw / 2 + 0.2234 * rec.r);
    rec.Mvdz = std::min<double>(rec.Mdz, MomentOf(st, W));
  }

  const double n = AxialRatio(rec, f);
  rec.alfa = 2;
  rec.beta = std::max(5 * n, 1.0);
  const double a = (rec.A - 2 * rec.b * rec.tf) / rec.A;
  const auto aboutY = [&](double M) { return std::min(M * (1 - n) / (1 - 0.5 * a), M); };
  const auto aboutZ = [&](double M) {
    return n <= a ? M : M * (1 - std::pow((n - a) / (1 - a), 2));
  };
  rec.Mndy = aboutY(rec.Mdy);
  rec.Mndypl = aboutY(MomentOf(st, rec.Wply));
  rec.Mndz = aboutZ(rec.Mdz);
  rec.Mndzpl = aboutZ(MomentOf(st, rec.Wplz));
  ShearAndAxial(f, rec);
}

void SectionCapacities(const ProjectState& st, const SectionForces& f, SectionRecord& rec) {
  AxialAndBending(st, rec);
  rec.Mfdy = MomentOf(st, (rec.h - rec.tf) * rec.b * rec.tf);
  rec.Mfdz = MomentOf(st, (rec.b * rec.b / 4 + rec.b * rec.b / 4) * rec.tf);
  TwoFlangeInteraction(st, f, rec);
}

void NominalCapacities(const ProjectState& st, const Family& family, SectionForces& f,
                       SectionRecord& rec) {
  const auto pass = [&](double My, double Mz, double Ncl) {
    f.My = My;
    f.Mz = Mz;
    f.Ncl = Ncl;
    family.routines.sectionClass(st, f, rec);
    family.routines.capacities(st, f, rec);
  };
  pass(10, 0, 0);
  rec.classMy = rec.class_;
  rec.Mdyshown = rec.Mdy;
  pass(0, 0, 10);
  rec.classN = rec.class_;
  rec.Ncrdshown = rec.Ncrd;
  pass(0, 10, 0);
  rec.Mdzshown = rec.Mdz;
}

}  // namespace korvane
