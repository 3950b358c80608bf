// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/grafik.h"

#include <cmath>

#include "core/text.h"
#include "presentation/load_items.h"

namespace korvane {
namespace {

// How a diagram is measured and drawn; one row for each kind.
struct Entry {
  DiagramInfo info;
  double (*height)(const DiagramData&, const DiagramStyle&);
  void (*draw)(DrawingTarget&, const DiagramOrigin&, const DiagramData&, const DiagramStyle&);
};

template <Plane plane, bool variable>
Entry Loads(DiagramKind kind, const char* name, const char* control) {
  return {{kind, name, control},
          [](const DiagramData& d, const DiagramStyle& s) {
            return LoadsHeight(d.st, plane, variable, s);
          },
          [](DrawingTarget& t, const DiagramOrigin& o, const DiagramData& d,
             const DiagramStyle& s) { DrawLoads(t, o, d.st, plane, variable, s); }};
}

template <Plane plane, bool zeros>
Entry Moment(DiagramKind kind, const char* name, const char* control) {
  return {{kind, name, control},
          [](const DiagramData& d, const DiagramStyle& s) {
            return MomentShearHeight(d.beam, plane, s);
          },
          [](DrawingTarget& t, const DiagramOrigin& o, const DiagramData& d,
             const DiagramStyle& s) { DrawMomentShear(t, o, d.st, d.beam, plane, zeros, s); }};
}

template <Plane plane>
Entry Deflection(DiagramKind kind, const char* name, const char* control) {
  return {{kind, name, control},
          [](const DiagramData& d, const DiagramStyle& s) {
            return DeflectionHeight(d.deflections, plane, s);
          },
          [](DrawingTarget& t, const DiagramOrigin& o, const DiagramData& d,
             const DiagramStyle& s) { DrawDeflection(t, o, d.st, d.deflections, plane, s); }};
}

const std::vector<Entry>& Entries() {
  using K = DiagramKind;
  static const std::vector<Entry> entries = {
      {{K::BeamSketch, "beam", "pic1"},
       [](const DiagramData& d, const DiagramStyle& s) { return BeamSketchHeight(d.st, s); },
       [](DrawingTarget& t, const DiagramOrigin& o, const DiagramData& d, const DiagramStyle& s) {
         DrawBeamSketch(t, o, d.st, s);
       }},
      {{K::AxialPermanent, "axial-perm", "picloadpn"},
       [](const DiagramData& d, const DiagramStyle& s) { return AxialLoadHeight(d.st, false, s); },
       [](DrawingTarget& t, const DiagramOrigin& o, const DiagramData& d, const DiagramStyle& s) {
         DrawAxialPermanent(t, o, d.st, s);
       }},
      {{K::AxialVariable, "axial-var", "picloadvn"},
       [](const DiagramData& d, const DiagramStyle& s) { return AxialLoadHeight(d.st, true, s); },
       [](DrawingTarget& t, const DiagramOrigin& o, const DiagramData& d, const DiagramStyle& s) {
         DrawAxialVariable(t, o, d.st, s);
       }},
      Loads<Plane::Z, false>(K::LoadPermZ, "loads-z-perm", "picloadzp"),
      Loads<Plane::Z, true>(K::LoadVarZ, "loads-z-var", "picloadzv"),
      Loads<Plane::Y, false>(K::LoadPermY, "loads-y-perm", "picloadyp"),
      Loads<Plane::Y, true>(K::LoadVarY, "loads-y-var", "picloadyv"),
      Moment<Plane::Z, true>(K::MomentShearZ, "my", "picmy"),
      Moment<Plane::Y, true>(K::MomentShearY, "mz", "picmz"),
      Moment<Plane::Z, false>(K::EndMomentZ, "my-end", "picmy"),
      Moment<Plane::Y, false>(K::EndMomentY, "mz-end", "picmz"),
      Deflection<Plane::Z>(K::DeflectionZ, "dz", "picdz"),
      Deflection<Plane::Y>(K::DeflectionY, "dy", "picdy"),
      {{K::AxialForce, "axial", "picloadpn"},
       [](const DiagramData&, const DiagramStyle& s) { return AxialForceHeight(s); },
       [](DrawingTarget& t, const DiagramOrigin& o, const DiagramData& d, const DiagramStyle& s) {
         DrawAxialForce(t, o, d.N, s);
       }},
  };
  return entries;
}

const Entry& EntryOf(DiagramKind kind) {
  return Entries().at(static_cast<std::size_t>(kind));
}

// The four values that the pointer of one plane's diagrams can ask for.
struct Pointed {
  const char* moment;
  const char* shear;
};

std::string ForcesUnder(const ProjectState& st, const PlaneForces& f, int station,
                        const Pointed& names) {
  const double x = st.L * station / StationValues::kLast;
  return " x = " + Format(x, "0.000") + " m" + names.moment + Format(f.M[station], "0.0") + " kNm" +
         names.shear + Format(f.V[station], "0.0") + " kN";
}

std::string DeflectionUnder(const ProjectState& st, const StationValues& values, int station) {
  const double x = st.L * station / StationValues::kLast;
  return " x = " + Format(x, "0.000") + " m" + "  y = " + Format(values[station], "0.0") + " mm";
}

}  // namespace

const DiagramInfo& InfoOf(DiagramKind kind) {
  return EntryOf(kind).info;
}

std::vector<DiagramKind> DiagramsOfMode(const ProjectState& st) {
  using K = DiagramKind;
  if (st.AnalysisMode == 0) return {K::BeamSketch, K::AxialForce, K::EndMomentZ, K::EndMomentY};
  std::vector<K> kinds = {K::BeamSketch};
  if (st.NP != 0) kinds.push_back(K::AxialPermanent);
  if (st.NV1 != 0 || st.NV2 != 0) kinds.push_back(K::AxialVariable);
  for (const K k : {K::LoadPermZ, K::LoadVarZ, K::LoadPermY, K::LoadVarY, K::MomentShearZ,
                    K::MomentShearY, K::DeflectionZ, K::DeflectionY}) {
    kinds.push_back(k);
  }
  return kinds;
}

bool PlaneIsEmpty(const ProjectState& st, const BeamResults& beam, Plane plane) {
  const PlaneForces& f = plane == Plane::Z ? beam.z : beam.y;
  if (f.M_max != 0 || f.M_min != 0 || f.V_max != 0 || f.V_min != 0) return false;
  if (st.AnalysisMode == 0) return true;
  const auto stands = [&](bool variable) {
    const LoadItems items = CollectLoads(st, plane, variable);
    return !items.distributed.empty() || !items.points.empty();
  };
  return !stands(false) && !stands(true);
}

double DiagramHeight(DiagramKind kind, const DiagramData& data, const DiagramStyle& style) {
  return EntryOf(kind).height(data, style);
}

void DrawDiagram(DrawingTarget& target, DiagramKind kind, const DiagramOrigin& origin,
                 const DiagramData& data, const DiagramStyle& style) {
  EntryOf(kind).draw(target, origin, data, style);
}

void DrawDiagramIn(DrawingTarget& target, DiagramKind kind, const Box& place,
                   Destination destination, const DiagramData& data, const DiagramStyle& style) {
  const double height = DiagramHeight(kind, data, style);
  const Box fitted = target.FitInside(place, kPictureWidth, height);
  const ScopedFrame frame(target, fitted, Box::At(0, 0, kPictureWidth, height));
  DrawDiagram(target, kind, {0, 0, destination}, data, style);
}

bool HasStations(DiagramKind kind) {
  switch (kind) {
    case DiagramKind::MomentShearZ:
    case DiagramKind::MomentShearY:
    case DiagramKind::EndMomentZ:
    case DiagramKind::EndMomentY:
    case DiagramKind::DeflectionZ:
    case DiagramKind::DeflectionY:
      return true;
    default:
      return false;
  }
}

std::string ValueUnderPointer(DiagramKind kind, double relative, const DiagramData& data) {
  constexpr int last = StationValues::kLast;
  const int station = static_cast<int>(std::lround(std::clamp(relative, 0., 1.) * last));
  switch (kind) {
    case DiagramKind::MomentShearZ:
    case DiagramKind::EndMomentZ:
      return ForcesUnder(data.st, data.beam.z, station, {"  My = ", "  Vz = "});
    case DiagramKind::MomentShearY:
    case DiagramKind::EndMomentY:
      return ForcesUnder(data.st, data.beam.y, station, {"  Mz = ", "  Vy = "});
    case DiagramKind::DeflectionZ:
      return DeflectionUnder(data.st, data.deflections.DeflZ, station);
    case DiagramKind::DeflectionY:
      return DeflectionUnder(data.st, data.deflections.DeflY, station);
    default:
      return {};
  }
}

}  // namespace korvane
