// SPDX-License-Identifier: GPL-3.0-or-later
#include "sections/p10bas.h"

#include <cmath>

#include "core/powers.h"
#include "sections/capacities.h"
#include "sections/elements.h"

namespace korvane {

namespace {

void DeriveCommon(const ProjectState& st, SectionRecord& rec) {
  rec.S = st.density * rec.A * 1E-6;
  rec.g = (2 * (rec.b + rec.h) - 2 * rec.r + kPi * rec.r / 2) / 1000;
  rec.tmax = rec.tw;
}

double LegReduction(const ProjectState& st, double leg, double t) {
  return leg * (1 - EffectiveWidth(leg / t, st.epsilon, 0.43, false)) * t;
}

void SetAxial(const ProjectState& st, int sectionClass, double Aeff, SectionRecord& rec) {
  rec.class_ = sectionClass;
  rec.Aeff = Aeff;
  rec.betaA = sectionClass == 1 ? 1.0 : rec.Aeff / rec.A;
  rec.Ncrd = ForceOf(st, rec.A * rec.betaA);
  rec.Ntd = st.fd * rec.A / 1000;
}

double LegShear(const ProjectState& st, double leg, double t) {
  return (leg - t) * (1 / 1.5) * t * st.fd / std::sqrt(3.0) / 1000;
}

}  // namespace

void LoadEqualAngle(const ProjectState& st, const Catalogues& cat, SectionRecord& rec) {
  const CatalogueTable& t = cat[Cat::L1];
  const int row = st.idxLeq;
  rec.h = t(row, 1);
  rec.b = rec.h;
  rec.tw = t(row, 2);
  rec.r = t(row, 3);
  rec.A = t(row, 4);
  rec.ez = t(row, 5);
  rec.ey = rec.ez;
  rec.u2 = t(row, 8);
  rec.Iy = t(row, 9) * 1E4;
  rec.Iz = rec.Iy;
  rec.Iu = t(row, 10) * 1E4;
  rec.Iv = t(row, 11) * 1E4;
  rec.alfadeg = 45;
  const double s = std::sin(kPi / 4);
  const double k = std::cos(kPi / 4);
  rec.v3 = rec.b * s - rec.tw / 2 * k;
  rec.v1 = rec.v3;
  rec.u3 = rec.b * k - rec.u2 + rec.tw / 2 * s;
  rec.u1 = rec.u3;
  rec.Ix = Cube(rec.tw) * (rec.b - rec.tw / 2) * (2.0 / 3);
  rec.Wu1 = rec.Iv / rec.u3;
  rec.Wu2 = rec.Iv / rec.u2;
  rec.Wv1 = rec.Iu / rec.v1;
  DeriveCommon(st, rec);
}

void LoadUnequalAngle(const ProjectState& st, const Catalogues& cat, SectionRecord& rec) {
  const CatalogueTable& t = cat[Cat::L2];
  const int row = st.idxLuneq;
  rec.h = t(row, 1);
  rec.b = t(row, 2);
  rec.tw = t(row, 3);
  rec.r = t(row, 4);
  rec.A = t(row, 5);
  rec.ez = t(row, 6);
  rec.ey = t(row, 7);
  rec.u2 = t(row, 10);
  rec.Iy = t(row, 13) * 1E4;
  rec.Iz = t(row, 14) * 1E4;
  rec.Iu = t(row, 15) * 1E4;
  rec.Iv = t(row, 16) * 1E4;
  const double theta = std::atan(t(row, 12));
  rec.alfadeg = theta * 180 / kPi;
  const double s = std::sin(theta);
  const double k = std::cos(theta);
  const double half = rec.tw / 2;
  rec.v2 = rec.ez * k - rec.ey * s;
  rec.v3 = rec.b * s + rec.v2 - half * k;
  rec.u3 = rec.b * k - rec.u2 + half * s;
  rec.v1 = rec.h * k - rec.v2 - half * s;
  rec.u1 = rec.h * s - rec.u2 + half * k;
  rec.Ix = Cube(rec.tw) * ((rec.b - half) + (rec.h - half)) * (1.0 / 3);
  rec.Wu1 = rec.Iv / rec.u1;
  rec.Wu2 = rec.Iv / rec.u2;
  rec.Wu3 = rec.Iv / rec.u3;
  rec.Wv1 = rec.Iu / rec.v1;
  rec.Wv2 = rec.Iu / rec.v2;
  rec.Wv3 = rec.Iu / rec.v3;
  DeriveCommon(st, rec);
}

void EqualAngleCapacities(const ProjectState& st, SectionRecord& rec) {
  const double t = rec.tw;
  if (rec.h / t <= 15 * st.epsilon) {
    SetAxial(st, 1, rec.A, rec);
  } else {
    SetAxial(st, 4, rec.A - 2 * LegReduction(st, rec.b, t), rec);
  }
  rec.Mud1 = rec.Wv1 * st.fd / 1E6;
  rec.Mud2 = 0;
  rec.Mud3 = rec.Mud1;
  rec.Mvd1 = rec.Wu1 * st.fd / 1E6;
  rec.Mvd2 = rec.Wu2 * st.fd / 1E6;
  rec.Mvd3 = rec.Mvd1;
}

void EqualAngleShear(const ProjectState& st, SectionRecord& rec) {
  rec.Vdz = LegShear(st, rec.b, rec.tw);
  rec.Vdy = rec.Vdz;
}

void UnequalAngleCapacities(const ProjectState& st, SectionRecord& rec) {
  const double t = rec.tw;
  if ((rec.b + rec.h) / (2 * t) <= 11.5 * st.epsilon) {
    SetAxial(st, 1, rec.A, rec);
  } else {
    SetAxial(st, 4, rec.A - LegReduction(st, rec.b, t) - LegReduction(st, rec.h, t), rec);
  }
  rec.Mud1 = rec.Wv1 * st.fd / 1E6;
  rec.Mud2 = rec.Wv2 * st.fd / 1E6;
  rec.Mud3 = rec.Wv3 * st.fd / 1E6;
  rec.Mvd1 = rec.Wu1 * st.fd / 1E6;
  rec.Mvd2 = rec.Wu2 * st.fd / 1E6;
  rec.Mvd3 = rec.Wu3 * st.fd / 1E6;
}

void UnequalAngleShear(const ProjectState& st, SectionRecord& rec) {
  rec.Vdz = LegShear(st, rec.h, rec.tw);
  rec.Vdy = LegShear(st, rec.b, rec.tw);
}

}  // namespace korvane
