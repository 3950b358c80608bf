// SPDX-License-Identifier: GPL-3.0-or-later
#include "checks/capacity_floor.h"

#include <algorithm>
#include <cmath>
#include <initializer_list>

#include "checks/section_control.h"
#include "sections/elements.h"

namespace korvane {

namespace {

class Walk {
public:
  Walk(const Family& family, const Finished& d)
      : family_(family), d_(d), f_(d.forces), rec_(d.rec) {
    // The class of the general profile is typed; the buckling control overwrites it.
    if (family.givenConstants) rec_.class_ = d.st.p41_option;
  }

  CapacityFloor Run() {
    Axial();
    switch (family_.routines.sectionControl) {
      case SectionControlKind::None:
      case SectionControlKind::T:
        break;
      case SectionControlKind::EqualAngle:
      case SectionControlKind::UnequalAngle:
        ForEachPoint([this](int i) { Angle(i); });
        break;
      case SectionControlKind::SingleSymmetric:
      case SectionControlKind::Plate:
        ForEachPoint([this](int i) { OneSided(i); });
        break;
      default:
        ForEachPoint([this](int i) { BothAxes(i); });
    }
    Lateral();
    return out_;
  }

private:
  template <class Point>
  void ForEachPoint(Point&& point) {
    for (int i = 0; i <= d_.beam.pt_last; ++i) {
      x_ = d_.beam.pt_x[i];
      point(i);
    }
  }

  /// The capacity must be above 0.
  bool Needs(const char* force, const char* capacity, double acting, double held) {
    if (acting == 0 || held > 0) return acting != 0;
    if (!out_.lost.Set() || held < out_.lost.held) out_.lost = {force, capacity, acting, held, x_};
    return false;
  }

  /// And the force must not exceed it.
  void Hold(const char* force, const char* capacity, double acting, double held) {
    if (!Needs(force, capacity, acting, held)) return;
    const double r = std::fabs(acting) / held;
    if (!(r > out_.ratio)) return;
    out_.ratio = r;
    out_.worst = {force, capacity, acting, held, x_};
  }

  void Axial() {
    const double N = f_.N;
    if (N == 0 || family_.routines.sectionControl == SectionControlKind::None) return;
    x_ = d_.beam.pt_x[0];
    Hold("N", N > 0 ? "Ncd" : "Ntd", N, N > 0 ? rec_.Ncrd : rec_.Ntd);
    if (N > 0 && d_.checks.bucklingRan) Hold("N", "Xmin*Ncd", N, d_.buckling.NXmin);
  }

  void Classify() {
    f_.Ncl = f_.N;
    family_.routines.sectionClass(d_.st, f_, rec_);
    family_.routines.capacities(d_.st, f_, rec_);
  }

  void BothAxes(int i) {
    const PlaneForces& z = d_.beam.z;
    const PlaneForces& y = d_.beam.y;
    f_.My = std::fabs(z.M_pt[i]);
    f_.Mz = std::fabs(y.M_pt[i]);
    f_.Vz = std::fabs(z.V_pt[i]);
    f_.Vy = std::fabs(y.V_pt[i]);
    Hold("Vz", "Vdz", f_.Vz, rec_.Vdz);
    Hold("Vy", "Vdy", f_.Vy, rec_.Vdy);
    if (f_.My == 0 && f_.Mz == 0) return;
    Classify();
    Hold("My", "Mdy", f_.My, rec_.Mdy);
    Hold("Mz", "Mdz", f_.Mz, rec_.Mdz);
    Needs("My", "Mvdy", f_.My, Sheared(rec_.Mvdy, f_.Vz, rec_.Vdz));
    Needs("Mz", "Mvdz", f_.Mz, Sheared(rec_.Mvdz, f_.Vy, rec_.Vdy));
    const bool exact = d_.st.SectionControlMode != 0 && rec_.class_ <= 2;
    if (!exact || f_.N == 0) return;
    Needs("My", f_.Vz > 0.5 * rec_.Vdz ? "Mvndy" : "Mndy", f_.My, rec_.Mvndy);
    Needs("Mz", f_.Vy > 0.5 * rec_.Vdy ? "Mvndz" : "Mndz", f_.Mz, rec_.Mvndz);
  }

  /// A tube's capacity that shear takes wholly away is set to 1 to keep its ratio finite.
  double Sheared(double Mvd, double V, double Vd) const {
    const bool gone = family_.routines.sectionControl == SectionControlKind::Tube && V > 0.5 * Vd &&
                      ShearShare(V, Vd) >= 1;
    return gone ? 0 : Mvd;
  }

  void OneSided(int i) {
    f_.My = d_.beam.z.M_pt[i];
    f_.Vz = std::fabs(d_.beam.z.V_pt[i]);
    Hold("Vz", "Vdz", f_.Vz, rec_.Vdz);
    if (f_.My == 0) return;
    Classify();
    const bool top = f_.My > 0;
    Hold("My", top ? "MdyTop" : "MdyBottom", f_.My, top ? rec_.MdyTop : rec_.MdyBottom);
    Needs("My", top ? "MvdyTop" : "MvdyBottom", f_.My, top ? rec_.MvdyTop : rec_.MvdyBottom);
  }

  void Angle(int i) {
    const PlaneForces& z = d_.beam.z;
    const PlaneForces& y = d_.beam.y;
    Hold("Vz", "Vdz", z.V_pt[i], rec_.Vdz);
    Hold("Vy", "Vdy", y.V_pt[i], rec_.Vdy);
    const auto [Mu, Mv] = ToPrincipal(z.M_pt[i], y.M_pt[i], rec_.alfadeg);
    // The heel of an equal angle lies on the axis u and has no capacity about it.
    const double Mud = rec_.Mud2 == 0
                           ? std::min<double>(rec_.Mud1, rec_.Mud3)
                           : std::min({double(rec_.Mud1), double(rec_.Mud2), double(rec_.Mud3)});
    Hold("Mu", "Mud", Mu, Mud);
    Hold("Mv", "Mvd", Mv, std::min({double(rec_.Mvd1), double(rec_.Mvd2), double(rec_.Mvd3)}));
  }

  void Lateral() {
    const bool plate = family_.routines.sectionControl == SectionControlKind::Plate;
    if (family_.lateral.method == LateralMethod::None || d_.st.LateralTorsionalBuckling != 1 ||
        d_.beam.MyAbsMax == 0)
      return;
    if (plate && !(d_.beam.My_gov < 0)) return;
    x_ = 0;
    Hold("My", "Mdb", d_.beam.My_gov, d_.ltb.Mdb);
  }

  const Family& family_;
  const Finished& d_;
  SectionForces f_;
  SectionRecord rec_;
  CapacityFloor out_;
  double x_ = 0;
};

}  // namespace

CapacityFloor FloorOf(const Family& family, const Finished& d) {
  return Walk(family, d).Run();
}

}  // namespace korvane
