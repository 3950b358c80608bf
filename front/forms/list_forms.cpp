// SPDX-License-Identifier: GPL-3.0-or-later
// The optimiser's eleven rows and the project database.
#include "front/forms/forms.h"
#include "front/session.h"

namespace korvane {

namespace {

std::string TwoDigits(int n) {
  return n < 10 ? "0" + std::to_string(n) : std::to_string(n);
}

/// Runs a search under the wait cursor, with its progress.
template <class Run>
void Search(Session& s, Run&& run) {
  const Waiting waiting(s.platform());
  run([&s](int done, int all) { s.platform().Progress(done, all); });
}

Control RowField(const std::string& name, int row, std::string OptimiserRowView::*member) {
  return TextLabel(name + std::to_string(row), [row, member](const Session& s) {
    const std::string& text = s.rows().row[row].view.*member;
    // Names hold the sizes as the catalogues write them.
    return member == &OptimiserRowView::name ? text : s.OnScreen(text);
  });
}

Control OfFailing(int row, Control control) {
  control.alarm = [row](const Session& s) { return RowFails(s.rows(), row); };
  return control;
}

OptimiserControls::Row AddRow(Form& form, int row) {
  const auto included = [row](const Session& s) { return s.rows().row[row].included; };
  const OptimiserRow& series = OptimiserRowOf(row);
  OptimiserControls::Row on{};
  on.search = Put(form, Check("cbp" + TwoDigits(row), series.series, included, [row](Session& s) {
                    Search(s, [&](const SearchProgress& progress) {
                      ToggleRow(s.design(), s.rows(), row, progress);
                    });
                  }));
  Control choose = Option(
      "op" + TwoDigits(row), series.series,
      [row](const Session& s) { return s.rows().results.RowChosen == row; },
      [row](Session& s) { s.rows().results.RowChosen = row; });
  choose.enabled = included;
  on.choose = Put(form, std::move(choose));
  on.name = Put(form, RowField("oname", row, &OptimiserRowView::name));
  on.weight = Put(form, RowField("oweight", row, &OptimiserRowView::weight));
  on.surface = Put(form, RowField("osurface", row, &OptimiserRowView::surface));
  on.ir = Put(form, OfFailing(row, RowField("oir", row, &OptimiserRowView::ir)));
  on.deflection = Put(form, RowField("odefl", row, &OptimiserRowView::deflection));
  on.words = Put(
      form, OfFailing(row, TextLabel("owords" + std::to_string(row),
                                     [row](const Session& s) { return WordsOf(s.rows(), row); })));
  return on;
}

Control CriterionOption(const char* name, int criterion) {
  return Option(
      name, kCriterionCaptions[criterion],
      [criterion](const Session& s) { return s.st().ResultView == criterion; },
      [criterion](Session& s) {
        Search(s, [&](const SearchProgress& progress) {
          SearchAgain(s.design(), s.rows(), criterion, progress);
        });
      });
}

// --- Database -----------------------------------------------------------------------------------

/// The selected row comes in force.
void LoadSelection(Session& s) {
  Database& db = s.database();
  db.DbRow = s.databaseSelection < 0 ? 0 : s.databaseSelection;
  if (db.DbLast < 0) return;
  s.TakeSection([&] {
    s.st().ProfileType = DatabaseRowType(db);
    if (db.listUpdate) return;
    LoadDatabaseRow(db, s.st());
    s.Calculate();
  });
}

/// The form sets its mode again, which a section added beside it has ended. A selected row sets
/// the family; without one nothing is changed.
void FocusDatabase(Session& s) {
  Database& db = s.database();
  s.st().DatabaseMode = 1;
  s.TakeSection([&] {
    if (s.databaseSelection >= 0 && s.databaseSelection <= db.DbLast) {
      db.DbRow = s.databaseSelection;
      s.st().ProfileType = DatabaseRowType(db);
    }
    s.Calculate();
  });
}

void RemoveSelected(Session& s) {
  Database& db = s.database();
  ++s.databaseVersion;
  db.listUpdate = true;
  const bool removed = RemoveRow(db, s.databaseSelection);
  db.listUpdate = false;
  if (!removed) {
    s.platform().Beep();
    return;
  }
  if (s.databaseSelection > db.DbLast) s.databaseSelection = db.DbLast;
}

Control DatabaseList() {
  Control c;
  c.name = "cbo";
  c.kind = Kind::List;
  c.items = [](const Session& s) {
    return FillDatabaseList(s.database(), s.design().lib->catalogues);
  };
  c.itemsVersion = [](const Session& s) { return s.databaseVersion; };
  c.selected = [](const Session& s) { return s.databaseSelection; };
  c.spoken = "Sections of the project database";
  c.deleteKey = RemoveSelected;
  c.select = [](Session& s, int index) {
    s.databaseSelection = index;
    if (s.st().DatabaseMode == 1) LoadSelection(s);
  };
  return c;
}

void OpenDatabase(Session& s) {
  const auto path = s.platform().AskOpen("*.db", "db");
  if (!path) return;
  s.database().DbFile = *path;
  ReadDatabase(*path, s.database());
  ++s.databaseVersion;
  s.databaseSelection = -1;
}

void SaveDatabase(Session& s) {
  const auto path = s.platform().AskSave("*.db", "db");
  if (!path) return;
  s.database().DbFile = *path;
  s.files().WroteDatabase(WriteDatabase(*path, s.database()));
  s.files().SetTitle(s.st().FamilyName + ": " + *path);
}

Control MoveButton(const char* name, const char* caption, const char* tip,
                   std::function<void(Session&)> click) {
  Control c = Button(name, caption, std::move(click));
  c.tip = tip;
  return c;
}

}  // namespace

void AddOptimiserForm(Forms& forms) {
  Form& form = forms.Add("optroll", Fixed("Optimize rolled profiles"));
  forms.optimiser = &form;
  form.input = form.modal = true;
  OptimiserControls& on = forms.onOptimiser;
  on.ULS = Put(form, CriterionOption("ULS", kCriterionUls));
  on.SLS = Put(form, CriterionOption("SLS", kCriterionSls));
  on.ULSSLS = Put(form, CriterionOption("ULSSLS", kCriterionUlsSls));
  Control limit = Input("idef_limit", "L/", Bind(&ProjectState::DeflectionLimit));
  limit.visible =
      limit.enabled = [](const Session& s) { return s.st().ResultView != kCriterionUls; };
  on.idef_limit = Put(form, std::move(limit));
  on.oufmax = Put(form, TextLabel("oufmax", [](const Session& s) {
                    return "UFmax = " + s.Shown(s.st().iufa, "#0.00");
                  }));
  for (int row = 1; row <= kOptimiserRows; ++row) on.rows[row] = AddRow(form, row);
  Control untested =
      Label("onodefl", "End forces give no deflections: the deflection is not tested");
  untested.visible = [](const Session& s) { return s.st().AnalysisMode != 1; };
  Put(form, std::move(untested));
  Put(form, Label("onote", "Note: All optimization is based on profile weight"));
  Put(form, Button("Command2", "OK", [](Session& s) {
        TakeOverRow(s.design(), s.rows().results);
        s.Unload(*TheForms().optimiser);
      }));
  // What was searched stays in force: nothing is cancelled.
  Put(form, CloseButton("Command1", "Close", form));
  form.onShow = [](Session& s) { OpenRows(s.design(), s.rows()); };
}

void AddDatabaseForm(Forms& forms) {
  Form& form = forms.Add("database", [](const Session& s) {
    return s.IsOpen(*TheForms().database) ? "Database file: " + s.database().DbFile
                                          : "Project Database ";
  });
  forms.database = &form;
  form.input = true;
  DatabaseControls& on = forms.onDatabase;
  on.list = Put(form, DatabaseList());
  Put(form, Button("Command1", "New Database", [](Session& s) {
        ClearDatabase(s.database());
        ++s.databaseVersion;
        s.databaseSelection = -1;
      }));
  Put(form, Button("open_db", "Open Database", OpenDatabase));
  Put(form, Button("save_db", "Save to Database", SaveDatabase));
  Put(form, MoveButton("Com_pilupp", "Up", " Move Profile Up ", [](Session& s) {
        if (MoveRowUp(s.database(), s.databaseSelection)) --s.databaseSelection;
        ++s.databaseVersion;
      }));
  Put(form, MoveButton("Com_pilner", "Down", " Move Profile Down ", [](Session& s) {
        if (MoveRowDown(s.database(), s.databaseSelection)) ++s.databaseSelection;
        ++s.databaseVersion;
      }));
  Put(form, MoveButton("cmd_x", "Remove", " Remove Profile ", RemoveSelected));
  on.close = Put(form, CloseButton("Command4", "CLOSE", form));
  form.onFocus = FocusDatabase;
}

}  // namespace korvane
