// SPDX-License-Identifier: GPL-3.0-or-later
#include "front/desktop/diagram_pane.h"

#include <QKeyEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>
#include <algorithm>
#include <cmath>
#include <map>

#include "front/copied_tables.h"
#include "front/desktop/diagram_names.h"
#include "front/desktop/member_strip.h"
#include "front/desktop/screen_target.h"
#include "front/desktop/station_table.h"
#include "front/desktop/theme.h"
#include "front/pane_text.h"

namespace korvane {

namespace {

/// Size in ems at which the drawings of a plane's loads are read with ease.
constexpr double kUsualWidth = 36, kUsualHeight = 18;
/// Letters of the diagrams in ems of the window's font.
constexpr double kLetters = 0.92;
/// From this width on, in ems, the letters grow, up to so many times their size.
constexpr double kWidePane = 60;
constexpr double kMostLetters = 1.6;
/// Least height of a grid unit, pixels.
constexpr double kLeastUnit = 1.8;
/// Greatest height of a grid unit as a multiple of its width.
constexpr double kMostStretch = 1.25;
/// The grid unit, in ems of the letters, at which lines have their own width.
constexpr double kPenUnit = 0.5;
/// Step of the arrow keys, a part of the length: from station to station.
constexpr double kStep = 1.0 / StationValues::kLast;

DiagramData DataOf(const Session& s) {
  const Design& d = s.design();
  return {d.st, d.beam, d.deflections, d.forces.N};
}

}  // namespace

DiagramBox::DiagramBox(const Session& session, DiagramKind kind, QWidget* parent)
    : Pane(session, parent), kind_(kind) {
  NameDiagramsWhenAsked();
  setMouseTracking(true);
  setFocusPolicy(Qt::TabFocus);
  setObjectName(QString::fromUtf8(InfoOf(kind).control));
}

QString DiagramBox::Texts() const {
  return QString::fromStdString(
      session_.OnScreen(PaneText(session_.design(), objectName().toStdString())));
}

void DiagramBox::SetScale(double unit, double letters) {
  unit_ = unit;
  letters_ = letters;
  update();
}

void DiagramBox::SetHairline(double relative) {
  if (hairline_ == relative) return;
  hairline_ = relative;
  update();
}

void DiagramBox::Draw(QPainter& painter) {
  ScreenTarget target(painter, *this, session_);
  const DiagramStyle style{letters_ / unit_, letters_ * kPenUnit / unit_};
  {
    const ScopedFrame frame(target, {0, 0, double(width()), double(height())},
                            {0, 0, kPictureWidth, height() / unit_});
    DrawDiagram(target, kind_, {0, 0, Destination::Page}, DataOf(session_), style);
  }
}

QString DiagramBox::Table() const {
  return QString::fromStdString(StationTable(session_));
}

void DiagramBox::AddActions(QMenu& menu) {
  menu.addAction(tr("Table of the stations..."), this, &DiagramBox::TableWanted);
  Pane::AddActions(menu);
}

void DiagramBox::DrawMarks(QPainter& painter) {
  if (hairline_ < 0) return;
  const double x = (kMemberLeft + hairline_ * kMemberWidth) * width() / kPictureWidth;
  painter.setPen(QPen(ColourFor(Role::Accent, palette()), 1, Qt::DashLine));
  painter.drawLine(QPointF(x, 0), QPointF(x, height()));
}

DiagramPane::DiagramPane(const Session& session, std::vector<std::string> controls, QWidget* parent)
    : QWidget(parent),
      session_(session),
      controls_(std::move(controls)),
      usualHeight_(kUsualHeight),
      strip_(new MemberStrip(session, this)),
      tag_(new QLabel(this)) {
  setAutoFillBackground(true);
  setBackgroundRole(QPalette::Base);
  setMinimumWidth(Ems(this, 18));
  tag_->setObjectName(QStringLiteral("pointer_tag"));
  tag_->setAttribute(Qt::WA_TransparentForMouseEvents);
  tag_->setAutoFillBackground(true);
  tag_->setBackgroundRole(QPalette::ToolTipBase);
  tag_->setForegroundRole(QPalette::ToolTipText);
  tag_->setFrameShape(QFrame::Box);
  tag_->setMargin(Ems(this, 0.25));
  tag_->hide();
}

QSize DiagramPane::sizeHint() const {
  return {Ems(this, kUsualWidth), Ems(this, usualHeight_)};
}

void DiagramPane::ShowLoadsOf(Plane plane, double usualHeight) {
  loadsOf_ = plane;
  usualHeight_ = usualHeight;
  strip_->hide();
}

std::vector<DiagramKind> DiagramPane::Wanted() const {
  std::vector<DiagramKind> kinds;
  for (const DiagramKind kind : DiagramsOfMode(session_.st())) {
    const std::string control = InfoOf(kind).control;
    if (std::find(controls_.begin(), controls_.end(), control) != controls_.end()) {
      kinds.push_back(kind);
    }
  }
  return kinds;
}

void DiagramPane::Rebuild(const std::vector<DiagramKind>& kinds) {
  LoseStation();
  for (DiagramBox* box : boxes_) {
    box->hide();
    box->deleteLater();
    box->setObjectName(QString());
  }
  boxes_.clear();
  for (const DiagramKind kind : kinds) {
    auto* box = new DiagramBox(session_, kind, this);
    box->installEventFilter(this);
    connect(box, &DiagramBox::TableWanted, this, &DiagramPane::ShowTable);
    box->show();
    boxes_.push_back(box);
  }
}

void DiagramPane::Refresh() {
  if (loadsOf_) setVisible(!PlaneFolds(session_.design(), *loadsOf_));
  const std::vector<DiagramKind> kinds = Wanted();
  const bool same = std::equal(kinds.begin(), kinds.end(), boxes_.begin(), boxes_.end(),
                               [](DiagramKind k, const DiagramBox* b) { return b->kind() == k; });
  if (!same) Rebuild(kinds);
  for (DiagramBox* box : boxes_) {
    TellNewName(*box);
    box->Refresh();
  }
  strip_->Refresh();
  Arrange();
  if (table_ != nullptr) table_->Refresh();
  // The station in sight tells the values of now.
  DiagramBox* box = pointed_;
  if (box != nullptr && tag_->isVisible()) PointAt(box, box->hairline(), pointedY_);
}

DiagramBox* DiagramPane::Box(const std::string& control) const {
  for (DiagramBox* box : boxes_) {
    if (box->objectName().toStdString() == control) return box;
  }
  return nullptr;
}

void DiagramPane::resizeEvent(QResizeEvent*) {
  Arrange();
}

double DiagramPane::Letters() const {
  // Letters grow with a pane that is far wider than its text needs.
  return Ems(this, kLetters) *
         std::clamp(double(width()) / Ems(this, kWidePane), 1.0, kMostLetters);
}

void DiagramPane::Arrange() {
  // Each height is a part of plot, in grid units, and a part of letters, in pixels.
  const DiagramData diagrams = DataOf(session_);
  const double letters = Letters();
  std::vector<double> plot, text;
  double plots = 0, texts = 0;
  const int strip = loadsOf_ ? 0 : MemberStrip::HeightFor(letters);
  for (const DiagramBox* box : boxes_) {
    const double h1 = DiagramHeight(box->kind(), diagrams, {2, 1});
    const double h2 = DiagramHeight(box->kind(), diagrams, {4, 1});
    text.push_back((h2 - h1) / 2);
    plot.push_back(h1 - 2 * text.back());
    plots += plot.back();
    texts += text.back();
  }
  if (boxes_.empty()) return;
  const double unit =
      std::clamp((height() - strip - texts * letters) / std::max(plots, 1.0), kLeastUnit,
                 std::max(kLeastUnit, kMostStretch * width() / kPictureWidth));
  setMinimumHeight(static_cast<int>(std::ceil(plots * kLeastUnit + texts * letters)) + strip);
  double y = 0;
  bool placed = false;
  const auto placeStrip = [&] {
    strip_->SetLetters(letters);
    strip_->setGeometry(0, qRound(y), width(), strip);
    y += strip;
    placed = true;
  };
  for (std::size_t k = 0; k < boxes_.size(); ++k) {
    // The member stands between its loads and what they do.
    if (!placed && HasStations(boxes_[k]->kind())) placeStrip();
    const double h = plot[k] * unit + text[k] * letters;
    const int top = qRound(y);
    boxes_[k]->SetScale(unit, letters);
    boxes_[k]->setGeometry(0, top, width(), qRound(y + h) - top);
    y += h;
  }
  if (!placed) placeStrip();
}

bool DiagramPane::eventFilter(QObject* watched, QEvent* event) {
  auto* box = qobject_cast<DiagramBox*>(watched);
  if (box == nullptr) return QWidget::eventFilter(watched, event);
  if (event->type() == QEvent::MouseMove) {
    Point(box, static_cast<QMouseEvent*>(event)->position());
  }
  if (event->type() == QEvent::KeyPress && Step(box, static_cast<QKeyEvent*>(event)->key())) {
    return true;
  }
  if (event->type() == QEvent::Leave || event->type() == QEvent::FocusOut) LoseStation();
  return QWidget::eventFilter(watched, event);
}

void DiagramPane::LoseStation() {
  for (DiagramBox* box : boxes_) box->SetHairline(-1);
  pointed_ = nullptr;
  tag_->hide();
  emit Pointed(QString());
}

void DiagramPane::Point(DiagramBox* box, QPointF place) {
  const double grid = place.x() / std::max(1, box->width()) * kPictureWidth;
  PointAt(box, (grid - kMemberLeft) / kMemberWidth, box->y() + qRound(place.y()));
}

bool DiagramPane::Step(DiagramBox* box, int key) {
  const double at = std::max(0.0, box->hairline());
  const std::map<int, double> goals{{Qt::Key_Left, box->hairline() < 0 ? 1 : at - kStep},
                                    {Qt::Key_Right, box->hairline() < 0 ? 0 : at + kStep},
                                    {Qt::Key_Home, 0},
                                    {Qt::Key_End, 1}};
  const auto goal = goals.find(key);
  if (goal == goals.end()) return false;
  PointAt(box, goal->second, box->y() + box->height() / 2);
  return true;
}

void DiagramPane::PointAt(DiagramBox* box, double relative, int y) {
  const int station = qRound(std::clamp(relative, 0.0, 1.0) / kStep);
  pointed_ = box;
  pointedY_ = y;
  for (DiagramBox* b : boxes_) b->SetHairline(station * kStep);
  std::string text =
      ValueUnderPointer(session_.design(), box->objectName().toStdString(), station * kStep);
  // A box without values tells those of the plane's other diagrams.
  for (std::size_t k = 0; text.empty() && k < boxes_.size(); ++k) {
    text = ValueUnderPointer(session_.design(), boxes_[k]->objectName().toStdString(),
                             station * kStep);
  }
  const QString shown = QString::fromStdString(session_.OnScreen(std::move(text)));
  PlaceTag(shown, qRound((kMemberLeft + station * kStep * kMemberWidth) * width() / kPictureWidth),
           y);
  if (table_ != nullptr) table_->Mark(station);
  emit Pointed(shown);
}

void DiagramPane::PlaceTag(const QString& text, int x, int y) {
  tag_->setVisible(!text.isEmpty());
  if (text.isEmpty()) return;
  QStringList lines;
  for (const QString& part : text.split(QStringLiteral("  "))) lines << part.trimmed();
  tag_->setText(lines.join(QLatin1Char('\n')));
  tag_->adjustSize();
  const QRect seen = visibleRegion().boundingRect();
  const int gap = Ems(this, 0.7);
  const bool right = x + gap + tag_->width() <= width();
  const int top =
      std::clamp(y + gap, seen.top(), std::max(seen.top(), seen.bottom() + 1 - tag_->height()));
  tag_->move(right ? x + gap : std::max(0, x - gap - tag_->width()), top);
  tag_->raise();
}

void DiagramPane::ShowTable() {
  if (table_ == nullptr) table_ = new StationTableWindow(session_, window());
  table_->show();
  table_->activateWindow();
}

}  // namespace korvane
