// SPDX-License-Identifier: GPL-3.0-or-later
#include "front/desktop/sections_window.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QTableView>
#include <QVBoxLayout>

#include "core/text.h"
#include "front/desktop/desktop.h"
#include "front/desktop/sections_model.h"
#include "front/desktop/theme.h"

namespace korvane {

namespace {

/// Widths of the columns in ems.
constexpr double kColumnEms[] = {13, 4.4, 4.4, 5.6, 5.2, 5.6, 5, 13, 8, 19, 5, 5, 5};

QString Coloured(const QString& text, Headline::Tone tone, const QPalette& palette) {
  if (tone == Headline::Tone::Quiet) return text.toHtmlEscaped();
  const Role role = tone == Headline::Tone::Pass ? Role::Pass : Role::Fail;
  return QStringLiteral("<span style='color:%1'>%2</span>")
      .arg(ColourFor(role, palette).name(), text.toHtmlEscaped());
}

}  // namespace

SectionsWindow::SectionsWindow(Desktop& desktop, QWidget* parent)
    : QDialog(parent),
      desktop_(desktop),
      model_(new SectionsModel(desktop.session(), this)),
      proxy_(new SectionsProxy(*model_, this)) {
  setObjectName(QStringLiteral("sections"));
  setWindowTitle(tr("Sections"));
  auto* rows = new QVBoxLayout(this);
  auto* columns = new QHBoxLayout;
  QWidget* filters = Filters();
  columns->addWidget(filters);
  columns->addWidget(Table(), 1);
  rows->addLayout(columns, 1);
  rows->addWidget(Foot());
  search_->setFocus();
  resize(QSize(Ems(this, 126), Ems(this, 56)).boundedTo(screen()->availableSize() * 0.95));
  connect(&desktop_, &Desktop::Refreshed, this, &SectionsWindow::Follow);
  ApplyFilter();
}

QWidget* SectionsWindow::Filters() {
  auto* side = new QWidget;
  side->setFixedWidth(Ems(this, 17));
  auto* column = new QVBoxLayout(side);
  column->setContentsMargins(0, 0, 0, 0);
  const auto field = [this](const char* name, const QString& what) {
    auto* edit = new QLineEdit;
    edit->setObjectName(QString::fromUtf8(name));
    edit->setAccessibleName(what);
    edit->setToolTip(what);
    edit->installEventFilter(this);
    connect(edit, &QLineEdit::textChanged, this, &SectionsWindow::ApplyFilter);
    return edit;
  };
  search_ = field("search", tr("A part of the name: 300, IPE 3, RHS 100x100"));
  search_->setPlaceholderText(tr("Search by name"));
  search_->setClearButtonEnabled(true);
  column->addWidget(search_);
  series_ = new QListWidget;
  series_->setObjectName(QStringLiteral("series"));
  series_->setAccessibleName(tr("Series; none marked: all"));
  series_->setToolTip(tr("Those that are marked; all where none is"));
  QStringList words;
  for (const CatalogueSize& size : AllSizes()) {
    const QString word = QString::fromStdString(SeriesWord(size));
    if (!words.contains(word)) words << word;
  }
  for (const QString& word : words) {
    auto* item = new QListWidgetItem(QString(word).remove(QLatin1Char('&')), series_);
    item->setData(Qt::UserRole, word);
    item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
    item->setCheckState(Qt::Unchecked);
  }
  connect(series_, &QListWidget::itemChanged, this, &SectionsWindow::ApplyFilter);
  column->addWidget(series_, 1);
  auto* limits = new QFormLayout;
  maxHeight_ = field("maxheight", tr("Greatest height, mm"));
  maxWidth_ = field("maxwidth", tr("Greatest width, mm"));
  limits->addRow(tr("h up to (mm)"), maxHeight_);
  limits->addRow(tr("b up to (mm)"), maxWidth_);
  column->addLayout(limits);
  passing_ = new QCheckBox(tr("&Passing alone"));
  passing_->setObjectName(QStringLiteral("passing"));
  sls_ = new QCheckBox(tr("with the &deflection limit"));
  sls_->setObjectName(QStringLiteral("sls"));
  sls_->setToolTip(tr("What passes holds the deflection limit too"));
  for (QCheckBox* box : {passing_, sls_}) {
    column->addWidget(box);
    connect(box, &QCheckBox::toggled, this, &SectionsWindow::ApplyFilter);
  }
  sls_->setEnabled(false);
  connect(passing_, &QCheckBox::toggled, sls_, &QWidget::setEnabled);
  return side;
}

QWidget* SectionsWindow::Table() {
  view_ = new QTableView;
  view_->setObjectName(QStringLiteral("sizes"));
  view_->setAccessibleName(tr("Sections"));
  view_->setModel(proxy_);
  delegate_ = new ToneDelegate(view_);
  view_->setItemDelegate(delegate_);
  view_->setSelectionBehavior(QAbstractItemView::SelectRows);
  view_->setSelectionMode(QAbstractItemView::SingleSelection);
  view_->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
  view_->setAlternatingRowColors(true);
  view_->setShowGrid(false);
  view_->setWordWrap(false);
  view_->setTabKeyNavigation(false);
  view_->setCornerButtonEnabled(false);
  view_->verticalHeader()->hide();
  view_->verticalHeader()->setDefaultSectionSize(Ems(this, 1.75));
  view_->verticalHeader()->setMinimumSectionSize(Ems(this, 1.75));
  view_->horizontalHeader()->setHighlightSections(false);
  view_->horizontalHeader()->setSectionsMovable(true);
  int column = 0;
  for (const double ems : kColumnEms) view_->setColumnWidth(column++, Ems(this, ems));
  view_->horizontalHeader()->setStretchLastSection(true);
  view_->setSortingEnabled(true);
  view_->sortByColumn(static_cast<int>(SizeColumn::Weight), Qt::AscendingOrder);
  view_->installEventFilter(this);
  connect(view_->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
          &SectionsWindow::ShowPreview);
  connect(view_, &QTableView::doubleClicked, this, &SectionsWindow::Take);
  return view_;
}

QWidget* SectionsWindow::Foot() {
  auto* foot = new QWidget;
  auto* row = new QHBoxLayout(foot);
  row->setContentsMargins(0, 0, 0, 0);
  preview_ = new QLabel;
  preview_->setObjectName(QStringLiteral("preview"));
  preview_->setTextFormat(Qt::RichText);
  preview_->setWordWrap(true);
  preview_->setTextInteractionFlags(Qt::TextSelectableByMouse);
  preview_->setMinimumHeight(3 * fontMetrics().lineSpacing());
  preview_->setAlignment(Qt::AlignLeft | Qt::AlignTop);
  row->addWidget(preview_, 1);
  count_ = new QLabel;
  count_->setObjectName(QStringLiteral("count"));
  count_->setForegroundRole(QPalette::PlaceholderText);
  row->addWidget(count_, 0, Qt::AlignBottom);
  take_ = new QPushButton(tr("&Take the section"));
  take_->setObjectName(QStringLiteral("take"));
  take_->setToolTip(tr("Puts the chosen section in force (Return or a double click)"));
  auto* close = new QPushButton(tr("&Close"));
  close->setObjectName(QStringLiteral("close"));
  for (QPushButton* button : {take_, close}) {
    button->setAutoDefault(false);
    row->addWidget(button, 0, Qt::AlignBottom);
  }
  connect(take_, &QPushButton::clicked, this, &SectionsWindow::Take);
  connect(close, &QPushButton::clicked, this, &QWidget::close);
  return foot;
}

void SectionsWindow::Open() {
  const bool wasOpen = isVisible();
  show();
  raise();
  activateWindow();
  if (!wasOpen) Select(model_->rows().InForce(), true);
}

void SectionsWindow::showEvent(QShowEvent* event) {
  Follow();
  QDialog::showEvent(event);
}

void SectionsWindow::Follow() {
  if (!isVisible()) return;
  // What isn't the result of the state in force is pale; its numbers are those of before.
  if (delegate_->SetPale(Pale())) view_->viewport()->update();
  if (Pale()) {
    ShowPreview();
    return;
  }
  const auto inSight = [this](const QModelIndex& row) {
    return row.isValid() && view_->viewport()->rect().intersects(view_->visualRect(row));
  };
  // The chosen row keeps its place on the screen, else the uppermost one.
  QPersistentModelIndex anchor = view_->currentIndex();
  if (!inSight(anchor)) anchor = view_->indexAt(QPoint(1, 1));
  const int chosen = CurrentRow();
  const int top = view_->visualRect(anchor).top();
  model_->Follow();
  if (CurrentRow() != chosen) Select(chosen, false);
  if (anchor.isValid()) {
    QScrollBar* bar = view_->verticalScrollBar();
    bar->setValue(bar->value() + view_->visualRect(anchor).top() - top);
  }
  ShowPreview();
}

double SectionsWindow::LimitOf(QLineEdit& field) const {
  constexpr double none = std::numeric_limits<double>::infinity();
  const std::string text =
      field.text().trimmed().replace(QLatin1Char(','), QLatin1Char('.')).toStdString();
  bool good = true;
  const double limit = text.empty() ? none : QString::fromStdString(text).toDouble(&good);
  good = good && limit >= 0;
  QPalette colours = palette();
  if (!good) colours.setColor(QPalette::Text, ColourFor(Role::Fail, colours));
  field.setPalette(colours);
  return good ? limit : none;
}

void SectionsWindow::ApplyFilter() {
  SectionsFilter filter;
  filter.name = search_->text();
  for (int row = 0; row < series_->count(); ++row) {
    const QListWidgetItem* item = series_->item(row);
    if (item->checkState() == Qt::Checked) filter.series << item->data(Qt::UserRole).toString();
  }
  filter.maxHeight = LimitOf(*maxHeight_);
  filter.maxWidth = LimitOf(*maxWidth_);
  filter.passing = passing_->isChecked();
  filter.sls = sls_->isChecked();
  const int chosen = CurrentRow();
  proxy_->SetFilter(filter);
  if (CurrentRow() != chosen) Select(chosen, false);
  if (CurrentRow() >= 0) view_->scrollTo(view_->currentIndex());
  ShowPreview();
}

bool SectionsWindow::Pale() const {
  return !desktop_.session().NotCalculated().empty();
}

int SectionsWindow::CurrentRow() const {
  return view_->currentIndex().isValid() ? proxy_->mapToSource(view_->currentIndex()).row() : -1;
}

void SectionsWindow::Select(int sourceRow, bool centre) {
  const QModelIndex row =
      sourceRow < 0 ? QModelIndex() : proxy_->mapFromSource(model_->index(sourceRow, 0));
  view_->setCurrentIndex(row);
  if (centre && row.isValid()) view_->scrollTo(row, QAbstractItemView::PositionAtCenter);
}

void SectionsWindow::ShowPreview() {
  count_->setText(tr("%1 of %2").arg(proxy_->rowCount()).arg(model_->rowCount()));
  const int row = CurrentRow();
  take_->setEnabled(row >= 0 && !Pale());
  if (row < 0 || Pale()) {
    preview_->setText(QString::fromStdString(desktop_.session().NotCalculated()).toHtmlEscaped());
    return;
  }
  const SizePreview p = model_->rows().Preview(desktop_.session(), row);
  const auto text = [](const std::string& s) { return QString::fromStdString(s); };
  preview_->setText(
      QStringLiteral("<b>%1</b>&nbsp;&nbsp; max IR <b>%2</b>&nbsp;&nbsp; <b>%3</b><br>%4<br>%5")
          .arg(text(p.name).toHtmlEscaped(), Coloured(text(p.figure), p.said.tone, palette()),
               Coloured(QString::fromUtf8(p.said.word), p.said.tone, palette()),
               text(p.line).toHtmlEscaped(), Coloured(text(p.below), p.belowTone, palette())));
}

void SectionsWindow::Take() {
  const int row = CurrentRow();
  // A field in which somebody has typed is left first, as by any other button.
  if (row < 0 || Pale() || desktop_.Busy() || !desktop_.Commit()) return;
  const CatalogueSize size = model_->rows().All().at(static_cast<std::size_t>(row)).size;
  desktop_.Act([&] { TakeSection(size, desktop_.session()); });
}

bool SectionsWindow::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::KeyPress) return QDialog::eventFilter(watched, event);
  const int key = static_cast<QKeyEvent*>(event)->key();
  const bool chooses = key == Qt::Key_Return || key == Qt::Key_Enter;
  if (watched == view_ && chooses) {
    Take();
    return true;
  }
  if (watched != view_ && (chooses || key == Qt::Key_Down)) {
    // From a filter into the table, onto its first row where none is chosen.
    if (CurrentRow() < 0 && proxy_->rowCount() > 0) view_->setCurrentIndex(proxy_->index(0, 0));
    view_->setFocus();
    return true;
  }
  return QDialog::eventFilter(watched, event);
}

}  // namespace korvane
