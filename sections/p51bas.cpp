// SPDX-License-Identifier: GPL-3.0-or-later
#include "sections/p51bas.h"

#include <algorithm>
#include <cmath>

#include "sections/capacities.h"
#include "sections/elements.h"
#include "sections/p22bas.h"
#include "sections/p23bas.h"
#include "sections/p26bas.h"
#include "sections/section_sum.h"

namespace korvane {

namespace {

/// Sums the rectangles into the record and derives what all plate families share. The plate is
/// b1 x tf1; h is the overall height already.
SumResult DerivePlate(const ProjectState& st, const RectList& list, SectionRecord& rec) {
  const SumResult sum = SectionSum(list);
  rec.A = sum.A;
  rec.Iy = sum.Iy;
  rec.Iz = sum.Iz;
  rec.Ix = sum.Ix;
  rec.b = rec.b1;
  rec.tf = rec.tf1;
  rec.r = 0;
  rec.ezel = rec.h - sum.ybar;
  rec.Wely1 = rec.Iy / rec.ezel;
  rec.Wely2 = rec.Iy / (rec.h - rec.ezel);
  rec.S = st.density * rec.A * 1E-6;
  rec.Afw = rec.hw * rec.tw;
  rec.Afc = rec.tf2 * rec.b2;
  rec.tmax = std::max<double>({rec.tf1, rec.tf2, rec.tw});
  return sum;
}

/// Dimensions of an angle shaped stiffener under a plate: height, leg width and thickness, web
/// thickness, root and toe radii.
struct AngleStiffener {
  double h, b, tw, t2, r1, r2;
};

/// Plate, web and leg away from the plate, with the roundings of a rolled angle; the plastic
/// axis in closed form, in the plate or in the web.
void LoadAngleStiffener(const ProjectState& st, const AngleStiffener& s, double b1, double t1,
                        SectionRecord& rec) {
  constexpr double q = 1 - kPi / 4;
  rec.h = s.h + t1;
  rec.tw = s.tw;
  rec.b1 = b1;
  rec.b2 = s.b;
  rec.tf1 = t1;
  rec.tf2 = s.t2;
  rec.hw = rec.h - t1 - s.t2;
  rec.d = rec.hw;
  rec.c1 = (b1 - s.tw) / 2;
  rec.c2 = s.b - s.tw;
  rec.Iw = 0;

  const double xw = (b1 - s.tw) / 2;
  RectList list;
  list.Add(Rect{b1, t1, 0, s.h});
  list.Add(Rect{s.tw, s.h, xw, 0});
  list.Add(Rect{s.b - s.tw, s.t2, xw + s.tw, 0});
  const double root = s.r1 * s.r1 * q;
  const double toe = s.r2 * s.r2 * q;
  list.Add(
      Fillet{root, xw + s.tw + 0.2234 * s.r1, s.t2 + 0.2234 * s.r1, 0.007545 * std::pow(s.r1, 4)});
  list.Add(
      Fillet{-toe, xw + s.b - 0.2234 * s.r2, s.t2 - 0.2234 * s.r2, -0.007545 * std::pow(s.r2, 4)});
  const double A = DerivePlate(st, list, rec).A;

  const double H = rec.h;
  const auto leg = [&](double y) {
    return (s.b - s.tw) * s.t2 * (H - s.t2 / 2 - y) + root * (H - s.t2 - 0.2234 * s.r1 - y) -
           toe * (H - s.t2 + 0.2234 * s.r2 - y);
  };
  double y = 0;
  if (t1 * b1 > A / 2) {
    y = A / (2 * b1);
    rec.Wply = ((t1 - y) * (t1 - y) + y * y) * b1 / 2 + (s.h / 2 + t1 - y) * s.h * s.tw + leg(y);
  } else {
    y = (A / 2 - t1 * b1) / s.tw + t1;
    rec.Wply = (y - t1 / 2) * t1 * b1 + (y - t1) * (y - t1) * s.tw / 2 +
               (H - y) * (H - y) * s.tw / 2 + leg(y);
  }
  rec.ezpl = y;
}

}  // namespace

void LoadPlateFlat(const ProjectState& st, const Catalogues&, SectionRecord& rec) {
  const double h = st.p51_h;
  rec.b1 = st.p51_b;
  rec.tw = st.p51_tw;
  rec.tf1 = st.p51_tf1;
  rec.tf2 = 0;
  rec.b2 = 0;
  rec.c2 = 0;
  rec.h = h + rec.tf1;
  rec.hw = rec.h - rec.tf1;
  rec.d = rec.hw;
  rec.c1 = (rec.b1 - rec.tw) / 2;
  RectList list;
  list.Add(Rect{rec.b1, rec.tf1, 0, h});
  list.Add(Rect{rec.tw, h, rec.c1, 0});
  const double A = DerivePlate(st, list, rec).A;
  rec.g = 2 * (rec.hw + rec.b1) / 1000;
  const PlasticT plastic = PlasticAxisOfT(A, rec.b1, rec.tf1, rec.hw, rec.tw);
  rec.ezpl = plastic.y;
  rec.Wply = plastic.Wply;
  rec.Iw = WarpingOfT(rec.b1, rec.tf1, rec.tw, rec.h);
}

void LoadPlateAngle(const ProjectState& st, const Catalogues& cat, SectionRecord& rec) {
  const CatalogueTable& t = cat[Cat::L3];
  const int row = st.p52_index;
  const AngleStiffener s{t(row, 1), t(row, 2), t(row, 3), t(row, 4), t(row, 5), t(row, 6)};
  LoadAngleStiffener(st, s, st.p52_b1, st.p52_t1, rec);
  rec.r1 = s.r1;
  rec.r2 = s.r2;
  rec.g = (2 * rec.b1 + 2 * s.h + 2 * s.b - 2 * s.tw - 2 * (1 - kPi / 4) * (s.r1 + s.r2)) / 1000;
}

void LoadPlateWeldedAngle(const ProjectState& st, const Catalogues&, SectionRecord& rec) {
  const AngleStiffener s{st.p53_h, st.p53_b2, st.p53_tw, st.p53_tf2, 0, 0};
  LoadAngleStiffener(st, s, st.p53_b1, st.p53_tf1, rec);
  rec.g = 2 * (rec.b1 + s.h + rec.b2 - rec.tw) / 1000;
}

BulbFlange EquivalentFlange(double tw, double bulb, double radius, double h, double A) {
  const double width = bulb + tw - 0.45 * radius;
  return {width, (A - tw * h) / (width - tw)};
}

void LoadPlateBulb(const ProjectState& st, const Catalogues& cat, SectionRecord& rec) {
  const CatalogueTable& t = cat[Cat::HP];
  const int row = st.p54_index;
  const double h = t(row, 1);
  const double tw = t(row, 2);
  const double wb = t(row, 3);
  const double r = t(row, 4);
  const BulbFlange flange = EquivalentFlange(tw, wb, r, h, t(row, 5) * 100);
  LoadAngleStiffener(st, {h, flange.width, tw, flange.thickness, 0, 0}, st.p54_b1, st.p54_t1, rec);
  const double outline = (tw + h + wb - r) + kPi * r + (wb - r) / std::cos(kPi / 6) + h - r -
                         (wb - r) * std::tan(kPi / 6);
  rec.g = (2 * rec.b1 + outline - tw) / 1000;
}

void LoadPlateTrapez(const ProjectState& st, const Catalogues&, SectionRecord& rec) {
  const double h = st.p55_h;
  const double a = st.p55_a;
  const double cosine = std::cos(std::atan(a / h));
  rec.b1 = st.p55_b1;
  rec.b2 = st.p55_b2;
  rec.tw = st.p55_tw;
  rec.tf1 = st.p55_tf1;
  rec.tf2 = rec.tw;
  rec.h = h + rec.tf1;
  rec.hw = h - rec.tw;
  rec.d = rec.hw;
  const double ww = rec.tw / cosine;
  rec.bw = rec.b2 + 2 * a - 2 * ww;
  rec.cm = rec.bw;
  rec.c1 = (rec.b1 - rec.b2 - 2 * a) / 2;
  rec.co = rec.c1;
  rec.c2 = 0;
  rec.Iw = 0;
  RectList list;
  list.Add(Rect{rec.b1, rec.tf1, 0, h});
  list.Add(Rect{2 * ww, h - rec.tw, (rec.b1 - 2 * ww) / 2, rec.tw});
  list.Add(Rect{rec.b2, rec.tw, (rec.b1 - rec.b2) / 2, 0});
  const double A = DerivePlate(st, list, rec).A;
  rec.g = (2 * rec.b1 - 2 * a + 2 * h / cosine) / 1000;
  const double y = WalkPlasticAxis(list, A, rec.h);
  rec.ezpl = rec.h - y;
  rec.Wply = PlasticModulus(list, y);
}

void LoadPlateT(const ProjectState& st, const Catalogues&, SectionRecord& rec) {
  const double h = st.p56_h;
  rec.b1 = st.p56_b1;
  rec.b2 = st.p56_b2;
  rec.tw = st.p56_tw;
  rec.tf1 = st.p56_tf1;
  rec.tf2 = st.p56_tf2;
  rec.h = h + rec.tf1;
  rec.hw = rec.h - rec.tf1 - rec.tf2;
  rec.d = rec.hw;
  rec.c1 = (rec.b1 - rec.tw) / 2;
  rec.c2 = (rec.b2 - rec.tw) / 2;
  RectList list;
  list.Add(Rect{rec.b1, rec.tf1, (rec.b2 - rec.b1) / 2, h});
  list.Add(Rect{rec.tw, h - rec.tf2, (rec.b2 - rec.tw) / 2, rec.tf2});
  list.Add(Rect{rec.b2, rec.tf2, 0, 0});
  const double A = DerivePlate(st, list, rec).A;
  rec.g = 2 * (rec.b1 + rec.b2 + h - rec.tw) / 1000;
  const double y = WalkPlasticAxis(list, A, rec.h);
  rec.ezpl = rec.h - y;
  rec.Wply = PlasticModulus(list, y);
  TwoFlangeWarping(rec.h, rec);
}

namespace {

/// How the strip taken off a flat counts in the second moment about the tip: as the rule has it,
/// tw/2*w^2, or with its area times its distance squared.
enum class Strip { Settled, Whole };

/// The flat with its tip compressed, an outstand.
BentSection TipCompressed(const ProjectState& st, const SectionRecord& rec, Strip strip) {
  const double z = rec.h - rec.ezel;
  const double psi = -(rec.hw - z) / z;
  const double rho =
      EffectiveWidth(rec.d / rec.tw, st.epsilon, OutstandFactor(psi), st.IgnoreWebBuckling == 1);
  const double w = (1 - rho) * z;
  const double A2 = rec.A - rec.tw * w;
  const double e = (z * rec.A - rec.tw * w * w / 2) / A2;
  const double shift =
      strip == Strip::Settled ? rec.tw / 2 * w * w : rec.tw * w * (w / 2) * (w / 2);
  return {e, z * z * rec.A + rec.Iy - rec.tw * w * w * w / 12 - shift - A2 * e * e};
}

/// Class of the flat with its tip compressed: alpha its share on the compressed side as the test
/// takes it, k the buckling factor.
int TipClass(double w, double alpha, double k, double eps) {
  return alpha > 0 && w <= 10 * eps / alpha   ? 1
         : alpha > 0 && w <= 11 * eps / alpha ? 2
         : w <= 23 * eps * std::sqrt(k)       ? 3
                                              : 4;
}

/// Stresses at the ends of the flat, the plate's first, compression negative, N/mm2.
struct FlatStresses {
  double plate, tip;
};

FlatStresses StressesOfFlat(const SectionForces& f, const SectionRecord& rec) {
  const double My = ClassMoment(f);
  return {-My * 1E6 / rec.Iy * (rec.ezel - rec.tf1 - rec.r),
          My * 1E6 / rec.Iy * (rec.h - rec.ezel - rec.tf2 - rec.r)};
}

}  // namespace

double FlatTipCapacity(const ProjectState& st, const SectionRecord& rec) {
  const BentSection tip = TipCompressed(st, rec, Strip::Whole);
  return MomentOf(st, std::min(tip.I / tip.e, tip.I / (rec.h - tip.e)));
}

int FlatClassByCompression(const ProjectState& st, const SectionForces& f,
                           const SectionRecord& rec) {
  const auto [plate, tip] = StressesOfFlat(f, rec);
  const int flat =
      TipClass(rec.d / rec.tw, tip / (tip - plate), OutstandFactor(plate / tip), st.epsilon);
  return GoverningClass(st, flat, 1);
}

void FlatStiffenerEffective(const ProjectState& st, SectionRecord& rec) {
  const double eps = st.epsilon;
  const bool noWeb = st.IgnoreWebBuckling == 1;
  const double H = rec.h;
  const double plate =
      2 * (1 - EffectiveWidth(rec.c1 / rec.tf1, eps, 0.43, st.IgnoreFlangeBuckling == 1)) * rec.c1 *
      rec.tf1;
  // Plate compressed: the flat is not reduced.
  const BentSection top = ReduceInBending(
      {rec.A, rec.Iy, rec.ezel, rec.tf1, plate, plate, rec.tw, rec.hw, rec.d / rec.tw, true}, eps);
  rec.Weffy1c = top.I / top.e;
  rec.Weffy2t = top.I / (H - top.e);

  const BentSection tip = TipCompressed(st, rec, Strip::Settled);
  rec.Weffy2c = tip.I / tip.e;
  rec.Weffy1t = tip.I / (H - tip.e);

  const double rhow = EffectiveWidth(rec.d / rec.tw, eps, 0.43, noWeb);
  rec.Aeff = rec.A - plate - (1 - rhow) * rec.d * rec.tw;
}

void AngleStiffenerEffective(const ProjectState& st, SectionRecord& rec) {
  const bool noFlange = st.IgnoreFlangeBuckling == 1;
  const auto outstand = [&](double c, double t) {
    return (1 - EffectiveWidth(c / t, st.epsilon, 0.43, noFlange)) * c * t;
  };
  const double top = 2 * outstand(rec.c1, rec.tf1);
  const double leg = outstand(rec.c2, rec.tf2);
  // The leg is one-sided, yet its moments and Aeff count it twice: kept.
  EffectiveModuli(st, {rec.tf1, top, top}, {rec.tf2, leg, 2 * leg}, {rec.tw, rec.h, rec.hw}, rec);
  const double rhow = EffectiveWidth(rec.d / rec.tw, st.epsilon, 4, st.IgnoreWebBuckling == 1);
  rec.Aeff = rec.A - top - (1 - rhow) * rec.d * rec.tw - 2 * leg;
}

void TrapezEffective(const ProjectState& st, SectionRecord& rec) {
  const double ww = rec.tw / std::cos(std::atan(st.p55_a / st.p55_h));
  TwoWebEffective(st, {rec.tf1, rec.cm, rec.c1, 2}, {rec.tf2, rec.b2 - 2 * ww, 0, 0},
                  {2 * rec.tw, rec.h, rec.hw}, rec);
}

void FlatStiffenerClass(const ProjectState& st, const SectionForces& f, SectionRecord& rec) {
  const double eps = st.epsilon;
  const auto [s1, s2] = StressesOfFlat(f, rec);
  const double w = rec.d / rec.tw;
  const double alpha = s1 / (s1 - s2);

  // Plate compressed: the flat has its tip in tension; stresses of one sign mean that the axis
  // lies in the plate and the flat is wholly in tension.
  int webTop = 1;
  if (s1 != 0 && (s1 < 0) != (s2 < 0)) {
    const double scale = alpha * std::sqrt(alpha);
    const double k = 0.578 / (0.34 + s2 / s1);
    webTop = w <= 10 * eps / scale                   ? 1
             : w <= 11 * eps / scale                 ? 2
             : k > 0 && w <= 23 * eps * std::sqrt(k) ? 3
                                                     : 4;
  }
  const int plate = ClassByLimits(rec.c1 / rec.tf1, 9 * eps, 10 * eps, 14 * eps, true);
  rec.classTop = GoverningClass(st, webTop, plate);

  rec.classBottom = GoverningClass(st, TipClass(w, alpha, OutstandFactor(s1 / s2), eps), 1);
}

void FlatStiffenerCapacities(const ProjectState& st, const SectionForces& f, SectionRecord& rec) {
  SideCapacities(st, 1, rec);
  SideShear(st, f, WebBetweenFlanges(rec.h, rec), rec);
}

}  // namespace korvane
