// SPDX-License-Identifier: GPL-3.0-or-later
// The optimiser's eleven rows and the project database.
#include "front/forms/forms.h"
#include "front/session.h"

namespace korvane {

namespace {

std::string TwoDigits(int n) {
  return n < 10 ? "0" + std::to_string(n) : std::to_string(n);
}

void ShowInRow(Session& s, int row) {
  auto& state = s.rows()[static_cast<std::size_t>(row)];
  state.view = ShowRow(s.design(), row, s.optimiser());
}

void Search(Session& s, int row) {
  SearchRow(s.design(), row, s.optimiser(),
            [&s](int done, int all) { s.platform().Progress(done, all); });
}

void ClickRow(Session& s, int row) {
  auto& state = s.rows()[static_cast<std::size_t>(row)];
  s.platform().WaitCursor(true);
  state.searched = !state.searched;
  if (state.searched) {
    Search(s, row);
    ShowInRow(s, row);
  } else {
    state.view = {};
  }
  s.platform().WaitCursor(false);
}

void ClickCriterion(Session& s, int criterion) {
  s.platform().WaitCursor(true);
  s.st().ResultView = criterion;
  for (int row = 1; row <= kOptimiserRows; ++row) {
    if (!s.rows()[static_cast<std::size_t>(row)].searched) continue;
    Search(s, row);
    // The HEM row goes through the display of the HEA row: kept.
    const int shown = RowShownOnReSearch(row);
    auto& target = s.rows()[static_cast<std::size_t>(shown)];
    if (target.searched) {
      target.view = ShowRow(s.design(), shown, s.optimiser());
    } else {
      target.view = {};
    }
  }
  s.platform().WaitCursor(false);
}

/// The row of the family in force is marked without a search.
void OpenRows(Session& s) {
  ProjectState& st = s.st();
  if (st.ResultView < 0 || st.ResultView > 2) st.ResultView = kCriterionUls;
  s.rows() = {};
  s.optimiser().RowChosen = 0;
  for (const OptimiserRow& row : AllOptimiserRows()) {
    if (row.ProfileType != st.ProfileType) continue;
    s.optimiser().RowChosen = row.row;
    s.rows()[static_cast<std::size_t>(row.row)].searched = true;
    ShowInRow(s, row.row);
  }
}

Control RowField(const std::string& name, int row, std::string OptimiserRowView::*member) {
  return TextLabel(name + std::to_string(row), [row, member](const Session& s) {
    const std::string& text = s.rows()[static_cast<std::size_t>(row)].view.*member;
    // Names hold the sizes as the catalogues write them.
    return member == &OptimiserRowView::name ? text : s.OnScreen(text);
  });
}

void AddRow(std::vector<Control>& c, int row) {
  const auto searched = [row](const Session& s) {
    return s.rows()[static_cast<std::size_t>(row)].searched;
  };
  const OptimiserRow& series = OptimiserRowOf(row);
  c.push_back(Check("cbp" + TwoDigits(row), series.series, searched,
                    [row](Session& s) { ClickRow(s, row); }));
  c.push_back(Option(
      "op" + TwoDigits(row), series.series,
      [row](const Session& s) { return s.optimiser().RowChosen == row; },
      [row](Session& s) { s.optimiser().RowChosen = row; }));
  c.back().enabled = searched;
  c.push_back(RowField("oname", row, &OptimiserRowView::name));
  c.push_back(RowField("oweight", row, &OptimiserRowView::weight));
  c.push_back(RowField("osurface", row, &OptimiserRowView::surface));
  c.push_back(RowField("oir", row, &OptimiserRowView::ir));
  c.push_back(RowField("odefl", row, &OptimiserRowView::deflection));
}

Control CriterionOption(const char* name, int criterion) {
  return Option(
      name, kCriterionCaptions[criterion],
      [criterion](const Session& s) { return s.st().ResultView == criterion; },
      [criterion](Session& s) { ClickCriterion(s, criterion); });
}

Form OptimiserForm() {
  Form form;
  form.name = "optroll";
  form.title = Fixed("Optimize rolled profiles");
  std::vector<Control>& c = form.controls;
  c.push_back(CriterionOption("ULS", kCriterionUls));
  c.push_back(CriterionOption("SLS", kCriterionSls));
  c.push_back(CriterionOption("ULSSLS", kCriterionUlsSls));
  c.push_back(Input("idef_limit", "L/", Bind(&ProjectState::DeflectionLimit)));
  c.back().visible = [](const Session& s) { return s.st().ResultView != kCriterionUls; };
  c.back().enabled = c.back().visible;
  c.push_back(TextLabel(
      "oufmax", [](const Session& s) { return "UFmax = " + s.Shown(s.st().iufa, "#0.00"); }));
  for (int row = 1; row <= kOptimiserRows; ++row) AddRow(c, row);
  c.push_back(Label("onote", "Note: All optimization is based on profile weight"));
  c.push_back(Button("Command2", "OK", [](Session& s) {
    TakeOverRow(s.design(), s.optimiser());
    s.Unload("optroll");
  }));
  c.push_back(CloseButton("Command1", "Cancel", "optroll"));
  form.onFocus = OpenRows;
  return form;
}

// --- Database -----------------------------------------------------------------------------------

/// Takes a row of the list. A damaged file may hold rows that can't be designed: then it beeps,
/// and the member is as it was.
void TakeRow(Session& s, const std::function<void()>& take) {
  const ProjectState before = s.st();
  try {
    take();
  } catch (const ArithmeticFault&) {
    s.platform().Beep();
    s.st() = before;
    s.Calculate();
  }
}

/// The selected row comes in force.
void LoadSelection(Session& s) {
  Database& db = s.database();
  db.DbRow = s.databaseSelection < 0 ? 0 : s.databaseSelection;
  if (db.DbLast < 0) return;
  TakeRow(s, [&] {
    s.st().ProfileType = DatabaseRowType(db);
    if (db.listUpdate) return;
    LoadDatabaseRow(db, s.st());
    s.Calculate();
  });
}

Control DatabaseList() {
  Control c;
  c.name = "cbo";
  c.kind = Kind::List;
  c.items = [](const Session& s) {
    return FillDatabaseList(s.database(), s.design().lib->catalogues);
  };
  c.selected = [](const Session& s) { return s.databaseSelection; };
  c.select = [](Session& s, int index) {
    s.databaseSelection = index;
    if (s.st().DatabaseMode == 1) LoadSelection(s);
  };
  return c;
}

void RemoveSelected(Session& s) {
  Database& db = s.database();
  db.listUpdate = true;
  const bool removed = RemoveRow(db, s.databaseSelection);
  db.listUpdate = false;
  if (!removed) {
    s.platform().Beep();
    return;
  }
  if (s.databaseSelection > db.DbLast) s.databaseSelection = db.DbLast;
}

Form DatabaseForm() {
  Form form;
  form.name = "database";
  form.title = [](const Session& s) {
    return s.IsOpen("database") ? "Database file: " + s.database().DbFile : "Project Database ";
  };
  std::vector<Control>& c = form.controls;
  c.push_back(DatabaseList());
  c.push_back(Button("Command1", "New Database", [](Session& s) {
    ClearDatabase(s.database());
    s.databaseSelection = -1;
  }));
  c.push_back(Button("open_db", "Open Database", [](Session& s) {
    const auto path = s.platform().AskOpen("*.db", "db");
    if (!path) return;
    s.database().DbFile = *path;
    ReadDatabase(s.DatabasePath(*path), s.database());
    s.databaseSelection = -1;
  }));
  c.push_back(Button("save_db", "Save to Database", [](Session& s) {
    const auto path = s.platform().AskSave("*.db", "db");
    if (!path) return;
    s.database().DbFile = *path;
    WriteDatabase(s.DatabasePath(*path), s.database());
    s.SetTitle(s.st().FamilyName + ": " + *path);
  }));
  c.push_back(Button("Com_pilupp", "Up", [](Session& s) {
    if (MoveRowUp(s.database(), s.databaseSelection)) --s.databaseSelection;
  }));
  c.back().tip = " Move Profile Up ";
  c.push_back(Button("Com_pilner", "Down", [](Session& s) {
    if (MoveRowDown(s.database(), s.databaseSelection)) ++s.databaseSelection;
  }));
  c.back().tip = " Move Profile Down ";
  c.push_back(Button("cmd_x", "Remove", RemoveSelected));
  c.back().tip = " Remove Profile ";
  c.push_back(CloseButton("Command4", "CLOSE", "database"));
  form.onFocus = [](Session& s) {
    Database& db = s.database();
    if (db.DbLast >= 0) {
      if (s.databaseSelection < 0) s.databaseSelection = 0;
      db.DbRow = s.databaseSelection;
    }
    TakeRow(s, [&] {
      if (db.DbLast >= 0) s.st().ProfileType = DatabaseRowType(db);
      s.Calculate();
    });
  };
  return form;
}

}  // namespace

void AddOptimiserForm(std::vector<Form>& forms) {
  forms.push_back(OptimiserForm());
}
void AddDatabaseForm(std::vector<Form>& forms) {
  forms.push_back(DatabaseForm());
}

}  // namespace korvane
