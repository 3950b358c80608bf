// SPDX-License-Identifier: GPL-3.0-or-later
// The handles of all forms and of the controls that code speaks of: a control that does not exist
// does not compile. Each is set where the form's table makes the control.
#pragma once

#include <array>
#include <deque>

#include "front/form_table.h"
#include "optimiser/optimize.h"

namespace korvane {

using Handle = const Control*;
/// By number, from 1.
template <int count>
using Numbered = Indexed<Handle, 1, count>;

struct MainControls {
  Handle iproj, iident, il, ispring, cbofyk, ifyk, ie, ofyd, igammam1, ibly, iblz, idef_limit;
  std::array<Handle, 6> cbutt;  ///< by support
  Handle obuckling0, obuckling1, osectionc0, osectionc1, ch_webbuck, ch_flangebuck, ch_modal;
  Handle ch_vipp, optimize, ULS, SLS, ULSSLS;
  Handle cbuttbucklingy, cbuttbucklingz, Command1, cbuttsupport, cbuttlateral, cp, de;
  Handle cmd_modresult, cmdpic, Picture;
  Handle columnframe, frsectionc, frbuckling, fr15, fr31, fr21, fr22;
  Handle obcy, obcz, obuckltext, obcauto, oblfactor, ouaxis, ovaxis, obeam, oweba, oza;
  Handle pic31, pic1;
  // Commands that have a key or more than their own entry
  Handle mnustiff, mnunew, mnuopen, mnusave, mnusaveas, mnuprint11, mnuexit, mnuhelp, mnuhelpcont;
  Handle mnuhelpsearch;
  Numbered<4> mnurecentfile;
};

struct LoadingControls {
  Handle ilfp_uls, ilfv1_uls, ilfv2_uls, ilfp_sls, ilfv1_Sls, ilfv2_Sls, ilfsw_ULS, ilfsw_SLS;
  Handle slsfactor, inp, inv1, inv2, check_selfweight, remove, undo;
  Handle pmxabsolute, pmxrelative, qtxabsolute, qtxrelative;
  struct Line {
    Handle q, pv, yz;
  };
  Indexed<Line, 1, 4> lines;
  struct Trapezoid {
    Handle q1, q2, x1, x2, pv, yz;
  };
  Indexed<Trapezoid, 1, 3> trapezoids;
  struct Item {
    Handle kind, value, x, pv, yz;
  };
  Indexed<Item, 1, 8> items;
};

struct EndForceControls {
  Handle ine, osign, onote;
  struct Row {
    Handle left, right;
  };
  std::array<Row, 4> rows;  ///< My, Mz, Vy, Vz
};

struct LateralControls {
  Handle Cbo, frlength, ik, Cfactor, ic1, ic2, ic3, frlevel, iza, omdb, omdbmin, osegment;
  Handle ohint1, ohint2;
  Numbered<5> latbuckl;
  Numbered<4> loadl;
};

/// bucklingy or bucklingz.
struct CaseControls {
  Numbered<5> cases;
};

struct CurveControls {
  Handle cbobcy, cbobcz;
  Numbered<5> method;
};

struct SetupControls {
  Handle frload;  ///< begins the second column
};

struct PictureControls {
  Handle otext;
};

struct OptimiserControls {
  Handle ULS, SLS, ULSSLS, idef_limit, oufmax;
  struct Row {
    Handle search, choose, name, weight, surface, ir, deflection, words;
  };
  Indexed<Row, 1, kOptimiserRows> rows;
};

struct DatabaseControls {
  Handle list, close;
};

/// All forms, made once, and their handles.
struct Forms {
  std::deque<Form> all;
  const Form *main, *loading, *endForces, *stiffeners, *points, *lateral, *bucklingY, *bucklingZ,
      *curves, *setup, *details, *modes, *about, *pictures, *optimiser, *database;
  MainControls onMain;
  LoadingControls onLoading;
  EndForceControls onEndForces;
  LateralControls onLateral;
  CaseControls onBucklingY, onBucklingZ;
  CurveControls onCurves;
  SetupControls onSetup;
  PictureControls onPictures;
  OptimiserControls onOptimiser;
  DatabaseControls onDatabase;

  /// A form without controls yet, at the end of all.
  Form& Add(std::string name, std::function<std::string(const Session&)> title);
};

/// The program's forms.
const Forms& TheForms();
/// All of them in their order.
inline const std::deque<Form>& AllForms() {
  return TheForms().all;
}
/// The form of a family by its code; throws std::logic_error for a code without one.
const Form& FamilyForm(int code);

}  // namespace korvane
