// SPDX-License-Identifier: GPL-3.0-or-later
#include "checks/section_control.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace korvane {

namespace {

/// What one family kind does at a calculation point. The point loop is the same for all.
struct Style {
  bool signedMoment;     ///< My keeps its sign, capacities go by it
  bool zDirectionOnly;   ///< no Vy, Mz and their interactions
  bool axial;            ///< axial force takes part at the points
  bool pureMomentsOnly;  ///< My and Mz alone only where nothing else acts (tube)
};

constexpr Style StyleOf(SectionControlKind kind) {
  switch (kind) {
    case SectionControlKind::SingleSymmetric:
      return {true, true, true, false};
    case SectionControlKind::Plate:
      return {true, true, false, false};
    case SectionControlKind::Tube:
      return {false, false, true, true};
    default:
      return {false, false, true, false};
  }
}

/// The walk over the points of one member.
class PointLoop {
public:
  PointLoop(const Family& family, ProjectState& st, const BeamResults& beam, SectionForces& f,
            SectionRecord& rec, CheckResults& out)
      : family_(family),
        st_(st),
        beam_(beam),
        f_(f),
        rec_(rec),
        out_(out),
        style_(StyleOf(family.routines.sectionControl)) {}

  void Run() {
    if (family_.routines.sectionControl == SectionControlKind::SingleSymmetric) AxialOnce();
    for (int i = 0; i <= beam_.pt_last; ++i) Point(i);
  }

  /// N alone, once for the member, at the position of the first point.
  void AxialOnce() {
    x_ = beam_.pt_x[0];
    Axial();
  }

private:
  void Point(int i) {
    x_ = beam_.pt_x[i];
    const auto size = [](double v) { return std::fabs(v); };
    f_.My = style_.signedMoment ? double(beam_.z.M_pt[i]) : size(beam_.z.M_pt[i]);
    f_.Vz = size(beam_.z.V_pt[i]);
    f_.Mz = size(beam_.y.M_pt[i]);
    f_.Vy = size(beam_.y.V_pt[i]);
    f_.Ncl = f_.N;
    family_.routines.sectionClass(st_, f_, rec_);
    if (family_.routines.sectionControl == SectionControlKind::Tube)
      out_.ClassGoverning = rec_.class_;
    RenewCapacities();

    Shear(f_.Vz, rec_.Vdz, out_.IRvz, out_.Vz);
    if (style_.zDirectionOnly) {
      OneSided();
      return;
    }
    Shear(f_.Vy, rec_.Vdy, out_.IRvy, out_.Vy);
    if (f_.My == 0 && f_.Mz == 0) Axial();
    Moments();
  }

  /// Most points share their capacities: they follow from the classes, N and shears above half of
  /// their capacity.
  void RenewCapacities() {
    const bool sheared = f_.Vz > 0.5 * rec_.Vdz || f_.Vy > 0.5 * rec_.Vdy;
    const std::array<int, 3> classes{rec_.class_, rec_.classTop, rec_.classBottom};
    if (standing_ && !sheared && classes == classes_) return;
    family_.routines.capacities(st_, f_, rec_);
    standing_ = !sheared;
    classes_ = classes;
  }

  void Shear(double V, double Vd, number& IR, GoverningForce& line) {
    if (V == 0) return;
    const double r = V / Vd;
    if (!(r > IR)) return;
    IR = r;
    line = {true, V, Vd, x_, r > st_.iufa};
  }

  void Axial() {
    if (f_.N == 0) return;
    const double Nd = f_.N > 0 && family_.routines.sectionControl != SectionControlKind::Tube
                          ? rec_.Ncrd
                          : rec_.Ntd;
    Take(std::fabs(f_.N / Nd), Term::N, Nd, rec_.class_);
  }

  /// My and N+My with the capacity of the compressed side.
  void OneSided() {
    if (f_.My == 0) return;
    const bool top = f_.My > 0;
    const double Mvd = top ? rec_.MvdyTop : rec_.MvdyBottom;
    const int sideClass = top ? rec_.classTop : rec_.classBottom;
    const double m = std::fabs(f_.My) / Mvd;
    capacityY_ = Mvd;
    unshearedY_ = top ? rec_.MdyTop : rec_.MdyBottom;
    betaY_ = top ? rec_.betaTop : rec_.betaBottom;
    Take(m, Term::My, 0, sideClass);
    if (style_.axial && f_.N != 0) {
      const double Nd = AxialCapacity();
      Take(std::fabs(f_.N / Nd) + m, Term::NMy, Nd, sideClass);
    }
  }

  void Moments() {
    const bool my = f_.My != 0;
    const bool mz = f_.Mz != 0;
    const bool n = f_.N != 0;
    if (!my && !mz) return;
    const bool exact = st_.SectionControlMode != 0 && rec_.class_ <= 2;
    capacityY_ = rec_.Mvdy;
    unshearedY_ = rec_.Mdy;
    betaY_ = rec_.betay;
    const double ry = my ? f_.My / rec_.Mvdy : 0;
    const double rz = mz ? f_.Mz / rec_.Mvdz : 0;
    const bool alone = !style_.pureMomentsOnly || !n;
    if (my && alone && !(style_.pureMomentsOnly && mz)) TakeClass(ry, Term::My, 0);
    if (mz && alone && !(style_.pureMomentsOnly && my)) TakeClass(rz, Term::Mz, 0);
    if (my && mz && !n) {
      const double r = exact ? std::pow(ry, rec_.alfa) + std::pow(rz, rec_.beta) : ry + rz;
      TakeClass(r, Term::MyMz, 0, exact);
    }
    if (!n) return;
    const double Nd = AxialCapacity();
    const double rn = std::fabs(f_.N / Nd);
    if (my) TakeClass(exact ? f_.My / rec_.Mvndy : rn + ry, Term::NMy, Nd, exact);
    if (mz) TakeClass(exact ? f_.Mz / rec_.Mvndz : rn + rz, Term::NMz, Nd, exact);
    if (my && mz) {
      const double r = exact ? std::pow(f_.My / rec_.Mvndy, rec_.alfa) +
                                   std::pow(std::fabs(f_.Mz / rec_.Mvndz), rec_.beta)
                             : rn + ry + rz;
      TakeClass(r, Term::NMyMz, Nd, exact);
    }
  }

  double AxialCapacity() const { return f_.N > 0 ? rec_.Ncrd : rec_.Ntd; }

  void TakeClass(double r, Term term, double Nd, bool exact = false) {
    Take(r, term, Nd, rec_.class_, exact);
  }

  /// Keeps the check when its ratio is the greatest so far; of equal ratios the earlier stands.
  void Take(double r, Term term, double Nd, int sectionClass, bool exact = false) {
    if (!(r > out_.IRsection)) return;
    out_.IRsection = r;
    out_.ClassGoverning = sectionClass;
    GoverningSection& s = out_.section;
    s.term = term;
    s.exact = exact;
    s.x = x_;
    s.N = f_.N;
    s.Nd = Nd;
    s.My = f_.My;
    s.Mz = f_.Mz;
    s.Mvdy = capacityY_;
    s.Mvdz = rec_.Mvdz;
    s.Mvndy = rec_.Mvndy;
    s.Mvndz = rec_.Mvndz;
    s.alfa = rec_.alfa;
    s.beta = rec_.beta;
    s.Vz = f_.Vz;
    s.Vy = f_.Vy;
    s.Vdz = rec_.Vdz;
    s.Vdy = rec_.Vdy;
    s.sectionClass = sectionClass;
    s.betay = betaY_;
    s.betaz = rec_.betaz;
    s.Mdy = unshearedY_;
    s.Mdz = rec_.Mdz;
    s.Mndy = rec_.Mndy;
    s.Mndz = rec_.Mndz;
    s.Mndypl = rec_.Mndypl;
    s.Mndzpl = rec_.Mndzpl;
    s.Mfdy = rec_.Mfdy;
    s.Mfdz = rec_.Mfdz;
  }

  const Family& family_;
  ProjectState& st_;
  const BeamResults& beam_;
  SectionForces& f_;
  SectionRecord& rec_;
  CheckResults& out_;
  const Style style_;
  double x_ = 0;
  double capacityY_ = 0, unshearedY_ = 0, betaY_ = 0;
  bool standing_ = false;         ///< the record has the capacities without shear ...
  std::array<int, 3> classes_{};  ///< ... of these classes
};

/// The corner that governs: 1 or 3 when the first exceeds the second, else 2 or 3.
int GoverningCorner(const std::array<double, 3>& r) {
  if (r[0] > r[1]) return r[0] > r[2] ? 1 : 3;
  return r[1] > r[2] ? 2 : 3;
}

void AngleControl(const ProjectState& st, const BeamResults& beam, bool equalLegs, SectionForces& f,
                  const SectionRecord& rec, CheckResults& out) {
  const double Nd = f.N > 0 ? rec.Ncrd : rec.Ntd;
  out.hasCorners = true;
  for (int i = 0; i <= beam.pt_last; ++i) {
    const double x = beam.pt_x[i];
    f.My = beam.z.M_pt[i];
    f.Mz = beam.y.M_pt[i];
    f.Vz = std::fabs(beam.z.V_pt[i]);
    f.Vy = std::fabs(beam.y.V_pt[i]);
    const auto [Mu, Mv] = ToPrincipal(f.My, f.Mz, rec.alfadeg);
    const double n = -f.N / Nd;
    out.cornerIR[0] = std::fabs(n - Mu / rec.Mud1 + Mv / rec.Mvd1);
    // The heel of an equal angle lies on the axis u.
    out.cornerIR[1] =
        equalLegs ? std::fabs(n - Mv / rec.Mvd2) : std::fabs(n + Mu / rec.Mud2 - Mv / rec.Mvd2);
    out.cornerIR[2] = std::fabs(n + Mu / rec.Mud3 + Mv / rec.Mvd3);
    const int corner = GoverningCorner(out.cornerIR);
    const double r = out.cornerIR[static_cast<std::size_t>(corner - 1)];
    if (r > out.IRsection) {
      const double Mud[] = {rec.Mud1, rec.Mud2, rec.Mud3};
      const double Mvd[] = {rec.Mvd1, rec.Mvd2, rec.Mvd3};
      out.IRsection = r;
      out.ClassGoverning = rec.class_;
      GoverningSection& s = out.section;
      s = {};
      s.term = Term::Angle;
      s.x = x;
      s.N = f.N;
      s.Nd = Nd;
      s.My = equalLegs && corner == 2 ? 0 : Mu;
      s.Mz = Mv;
      s.Mvdy = Mud[corner - 1];
      s.Mvdz = Mvd[corner - 1];
      s.corner = corner;
      s.sectionClass = rec.class_;
    }
    // A slip that is kept: the shear along z compares with IRvz but is stored in IRvy, so IRvz
    // stays 0, the line is rewritten at every point and its colour never turns.
    if (f.Vz != 0 && f.Vz / rec.Vdz > out.IRvz) {
      out.IRvy = f.Vz / rec.Vdz;
      out.Vz = {true, f.Vz, rec.Vdz, x, false};
    }
    if (f.Vy != 0 && f.Vy / rec.Vdy > out.IRvy) {
      out.IRvy = f.Vy / rec.Vdy;
      out.Vy = {true, f.Vy, rec.Vdy, x, out.IRvy > st.iufa};
    }
  }
}

void LateralControl(const ProjectState& st, const BeamResults& beam, const LtbResults& ltb,
                    CheckResults& out) {
  if (st.LateralTorsionalBuckling != 1 || beam.MyAbsMax == 0) return;
  out.IRlateral = std::fabs(beam.My_gov / ltb.Mdb);
  out.lateral = {true, beam.My_gov, ltb.Mdb, 0, out.IRlateral > st.iufa};
}

/// A plate carried family is checked only where its stiffener is compressed.
void PlateLateral(ProjectState& st, const BeamResults& beam, const LtbResults& ltb,
                  CheckResults& out) {
  if (beam.MyAbsMax != 0) {
    if (beam.My_gov < 0 && st.LateralTorsionalBuckling == 1) {
      LateralControl(st, beam, ltb, out);
    } else {
      st.LateralTorsionalBuckling = 0;
    }
  }
  st.LoadLevel = 1;
}

}  // namespace

PrincipalMoments ToPrincipal(double My, double Mz, double alfadeg) {
  const double theta = alfadeg * kPiSingle / 180;
  const double s = std::sin(theta);
  const double c = std::cos(theta);
  return {My * c + Mz * s, -My * s + Mz * c};
}

void ClearSectionResults(CheckResults& out) {
  out.IRsection = 0;
  out.IRvz = 0;
  out.IRvy = 0;
  out.IRlateral = 0;
  out.ClassGoverning = 1;
  out.section = {};
  out.Vz = {};
  out.Vy = {};
  out.lateral = {};
  out.hasCorners = false;
}

void SectionControl(const Family& family, ProjectState& st, const BeamResults& beam,
                    const LtbResults& ltb, SectionForces& f, SectionRecord& rec,
                    CheckResults& out) {
  ClearSectionResults(out);
  PointLoop loop(family, st, beam, f, rec, out);
  switch (family.routines.sectionControl) {
    case SectionControlKind::None:
      return;
    case SectionControlKind::EqualAngle:
      return AngleControl(st, beam, true, f, rec, out);
    case SectionControlKind::UnequalAngle:
      return AngleControl(st, beam, false, f, rec, out);
    case SectionControlKind::T:
      return loop.AxialOnce();
    case SectionControlKind::Plate:
      loop.Run();
      return PlateLateral(st, beam, ltb, out);
    default:
      loop.Run();
      LateralControl(st, beam, ltb, out);
  }
}

}  // namespace korvane
