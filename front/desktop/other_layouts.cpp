// SPDX-License-Identifier: GPL-3.0-or-later
// Layouts of the optimiser, database, curve, picture, default and lateral buckling forms.
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "front/desktop/form_binder.h"
#include "front/desktop/form_window.h"
#include "front/desktop/icons.h"
#include "front/desktop/optimiser_row.h"
#include "front/desktop/theme.h"
#include "front/desktop/widget_maker.h"
#include "optimiser/optimize.h"

namespace korvane {

namespace {

QLabel* Heading(const QString& text, Qt::Alignment align = Qt::AlignRight) {
  auto* label = new QLabel(text);
  label->setAlignment(align | Qt::AlignVCenter);
  label->setForegroundRole(QPalette::PlaceholderText);
  return label;
}

QString Two(int n) {
  return QStringLiteral("%1").arg(n, 2, 10, QLatin1Char('0'));
}

/// The controls of the form with a prefix, in their order.
std::vector<const Control*> Beginning(const WidgetMaker& maker, const std::string& prefix) {
  std::vector<const Control*> found;
  for (const Control& c : maker.form().controls) {
    if (c.name.rfind(prefix, 0) == 0) found.push_back(&c);
  }
  return found;
}

QHBoxLayout* PictureRow(WidgetMaker& maker, const std::string& prefix) {
  auto* row = new QHBoxLayout;
  for (const Control* c : Beginning(maker, prefix)) row->addWidget(maker.Make(c->name));
  row->addStretch(1);
  return row;
}

/// What a picture says, below it.
QLabel* Legend(const std::string& tip, const QWidget* window) {
  // A factor stays on one line.
  auto* text = new QLabel(
      QString::fromStdString(tip).replace(QStringLiteral(" = "), QStringLiteral("\u00a0=\u00a0")));
  text->setWordWrap(true);
  text->setMinimumWidth(Ems(window, 9));
  text->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
  return text;
}

}  // namespace

void LayOutCases(WidgetMaker& maker, QWidget* window) {
  auto* all = new QVBoxLayout(window);
  auto* grid = new QGridLayout;
  int column = 0;
  for (const Control* c : Beginning(maker, maker.form().name)) {
    grid->addWidget(maker.Make(c->name), 0, column, Qt::AlignCenter);
    grid->addWidget(Legend(c->tip, window), 1, column++);
  }
  all->addLayout(grid);
  all->addStretch(1);
  all->addLayout(maker.ButtonRow());
}

void LayOutOptimiser(WidgetMaker& maker, QWidget* window) {
  auto* all = new QVBoxLayout(window);
  auto* criteria = new QHBoxLayout;
  for (const char* name : {"ULS", "SLS", "ULSSLS"}) criteria->addWidget(maker.Make(name));
  criteria->addStretch(1);
  criteria->addWidget(maker.Caption("idef_limit"));
  criteria->addWidget(maker.Make("idef_limit"));
  criteria->addSpacing(Ems(window, 1));
  criteria->addWidget(maker.Make("oufmax"));
  all->addLayout(criteria);
  auto* grid = new QGridLayout;
  grid->setHorizontalSpacing(Ems(window, 1));
  const std::vector<std::pair<QString, std::string>> columns{{QObject::tr("Profile"), "oname"},
                                                             {QObject::tr("kg/m"), "oweight"},
                                                             {QObject::tr("m2/m"), "osurface"},
                                                             {QObject::tr("IR"), "oir"},
                                                             {QObject::tr("Deflection"), "odefl"}};
  grid->addWidget(Heading(QObject::tr("Search"), Qt::AlignLeft), 0, 0);
  grid->addWidget(Heading(QObject::tr("Choose"), Qt::AlignLeft), 0, 1);
  for (std::size_t k = 0; k < columns.size(); ++k) {
    grid->addWidget(Heading(columns[k].first, k == 0 ? Qt::AlignLeft : Qt::AlignRight), 0,
                    int(k) + 2);
    grid->setColumnMinimumWidth(int(k) + 2, Ems(window, k == 0 ? 11 : 6));
  }
  for (int row = 1; row <= kOptimiserRows; ++row) {
    const std::string two = Two(row).toStdString();
    grid->addWidget(maker.Make("cbp" + two), row, 0);
    grid->addWidget(maker.Make("op" + two), row, 1);
    for (std::size_t k = 0; k < columns.size(); ++k) {
      auto* label = static_cast<QLabel*>(maker.Make(columns[k].second + std::to_string(row)));
      label->setAlignment((k == 0 ? Qt::AlignLeft : Qt::AlignRight) | Qt::AlignVCenter);
      grid->addWidget(label, row, int(k) + 2);
    }
    grid->addWidget(new OptimiserRowMark(maker.session(), row, window), row,
                    int(columns.size()) + 2);
  }
  grid->setColumnStretch(int(columns.size()) + 2, 1);
  all->addLayout(grid);
  maker.Stack(all, maker.Rest());
  all->addStretch(1);
  all->addLayout(maker.ButtonRow());
}

void LayOutDatabase(WidgetMaker& maker, QWidget* window) {
  auto* all = new QHBoxLayout(window);
  QWidget* list = maker.MakeOpenList("cbo");
  list->setMinimumSize(Ems(window, 26), Ems(window, 20));
  all->addWidget(list, 1);
  auto* buttons = new QVBoxLayout;
  for (const Control* c : maker.Rest()) {
    if (c->name == "Command4") buttons->addStretch(1);
    buttons->addWidget(maker.Make(c->name));
  }
  all->addLayout(buttons);
}

void LayOutCurves(WidgetMaker& maker, QWidget* window) {
  auto* all = new QVBoxLayout(window);
  auto* grid = new QGridLayout;
  int row = 0;
  for (const auto& [name, title] : {std::pair{"cbobcy", QObject::tr("Buckling curve, Y-axis")},
                                    std::pair{"cbobcz", QObject::tr("Buckling curve, Z-axis")}}) {
    grid->addWidget(Heading(title), row, 0);
    grid->addWidget(maker.Make(name), row++, 1);
  }
  grid->setColumnStretch(2, 1);
  all->addLayout(grid);
  all->addLayout(PictureRow(maker, "method"));
  maker.Stack(all, maker.Rest());
  all->addStretch(1);
  all->addLayout(maker.ButtonRow());
}

void LayOutPictures(WidgetMaker& maker, QWidget* window) {
  auto* all = new QVBoxLayout(window);
  all->addWidget(maker.Make("otext"));
  auto* grid = new QGridLayout;
  grid->setHorizontalSpacing(Ems(window, 1));
  int row = 0;
  // The same pictures as on the buttons, with what these say.
  for (const auto& [form, prefix] :
       {std::pair{"korvane", "cbutt"}, std::pair{"bucklingy", "bucklingy"},
        std::pair{"vipping", "loadl"}}) {
    int column = 0;
    for (const Control& c : FindForm(form)->controls) {
      const std::string name = c.name;
      const bool counted = name.rfind(prefix, 0) == 0 && isdigit(name.back()) != 0;
      if (!counted) continue;
      auto* picture = new QToolButton;
      picture->setAutoRaise(true);
      picture->setFocusPolicy(Qt::NoFocus);
      picture->setAttribute(Qt::WA_TransparentForMouseEvents);
      const int height = Ems(picture, 3);
      picture->setIcon(PictureOf(form, name));
      picture->setIconSize(QSize(qRound(height * kPictureRatio), height));
      grid->addWidget(picture, row, column, Qt::AlignCenter);
      grid->addWidget(Legend(c.tip, window), row + 1, column++);
    }
    row += 2;
  }
  all->addLayout(grid);
  all->addStretch(1);
  all->addLayout(maker.ButtonRow());
}

void LayOutSetup(WidgetMaker& maker, QWidget* window) {
  auto* all = new QVBoxLayout(window);
  auto* columns = new QHBoxLayout;
  auto* left = new QVBoxLayout;
  auto* right = new QVBoxLayout;
  std::vector<const Control*> first, second;
  bool loads = false;
  for (const Control* c : maker.Rest()) {
    loads = loads || c->name == "frload";
    (loads ? second : first).push_back(c);
  }
  maker.Stack(left, first);
  maker.Stack(right, second);
  left->addStretch(1);
  right->addStretch(1);
  columns->addLayout(left);
  columns->addLayout(right);
  all->addLayout(columns);
  all->addLayout(maker.ButtonRow());
}

void LayOutLateral(WidgetMaker& maker, QWidget* window) {
  auto* all = new QVBoxLayout(window);
  const auto field = [&](QBoxLayout* into, const char* name) {
    auto* row = new QHBoxLayout;
    row->addWidget(maker.Caption(name));
    row->addWidget(maker.Make(name));
    row->addWidget(maker.Unit(name));
    row->addStretch(1);
    into->addLayout(row);
  };
  field(all, "Cbo");
  QGroupBox* length = maker.Frame("frlength");
  auto* column = new QVBoxLayout(length);
  column->addLayout(PictureRow(maker, "latbuckl"));
  field(column, "ik");
  column->addWidget(maker.Make("ohint2"));
  all->addWidget(length);
  all->addWidget(maker.Make("Cfactor"));
  auto* factors = new QHBoxLayout;
  for (const char* name : {"ic1", "ic2", "ic3"}) {
    factors->addWidget(maker.Caption(name));
    factors->addWidget(maker.Make(name));
  }
  factors->addStretch(1);
  all->addLayout(factors);
  QGroupBox* level = maker.Frame("frlevel");
  column = new QVBoxLayout(level);
  column->addLayout(PictureRow(maker, "loadl"));
  field(column, "iza");
  column->addWidget(maker.Make("ohint1"));
  all->addWidget(level);
  auto* values = new QHBoxLayout;
  for (const auto& [name, title] :
       {std::pair{"omdb", "Md,b ="}, std::pair{"omdbmin", "Md,b,min ="}}) {
    values->addWidget(Heading(QString::fromUtf8(title)));
    values->addWidget(maker.Make(name));
    values->addSpacing(Ems(window, 1));
  }
  values->addWidget(maker.Make("osegment"));
  values->addStretch(1);
  all->addLayout(values);
  all->addStretch(1);
  all->addLayout(maker.ButtonRow());
}

}  // namespace korvane
