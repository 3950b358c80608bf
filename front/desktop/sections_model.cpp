// SPDX-License-Identifier: GPL-3.0-or-later
#include "front/desktop/sections_model.h"

#include <QFont>
#include <QPainter>
#include <algorithm>
#include <array>

#include "front/desktop/theme.h"
#include "front/session.h"

namespace korvane {

namespace {

using Tone = Headline::Tone;

/// A column of numbers is shown with a format; one of words has none.
struct ColumnInfo {
  const char* head;
  const char* tip;
  const char* format;
  float SizeResult::*value;
};

constexpr std::array<ColumnInfo, static_cast<std::size_t>(SizeColumn::Count)> kColumns{{
    {"Section", "Name; the section in force stands in bold with a mark", nullptr, nullptr},
    {"h\nmm", "Height", "0", &SizeResult::h},
    {"b\nmm", "Width", "0", &SizeResult::b},
    {"kg/m", "Weight of a metre", "0.0", &SizeResult::weight},
    {"m2/m", "Surface of a metre", "0.00", &SizeResult::surface},
    {"kg", "Weight of the member", "0", &SizeResult::totalWeight},
    {"m2", "Surface of the member", "0.0", &SizeResult::totalSurface},
    {"max IR", "Greatest utilisation ratio of all checks, with a bar to the limit", "#0.00",
     &SizeResult::MaxIR},
    {"ULS", "Ultimate limit state", nullptr, nullptr},
    {"governing check", "The check with the greatest ratio", nullptr, nullptr},
    {"L/x\nz", "Length over the greatest deflection along z", "0", &SizeResult::LoverZ},
    {"L/x\ny", "Length over the greatest deflection along y", "0", &SizeResult::LoverY},
    {"SLS", "Serviceability limit state: L/x against the limit", nullptr, nullptr},
}};

const ColumnInfo& InfoOf(SizeColumn column) {
  return kColumns.at(static_cast<std::size_t>(column));
}

StandingSaid SaidOf(const SizeResult& size) {
  return korvane::SaidOf(size.standing, !size.governing.empty());
}

bool HasRatio(const SizeResult& size) {
  return !size.governing.empty();
}

Tone ToneOfCell(const SizeResult& size, SizeColumn column) {
  switch (column) {
    case SizeColumn::Ratio:
    case SizeColumn::Uls:
      return SaidOf(size).tone;
    case SizeColumn::Sls:
      return ToneOf(size.sls);
    default:
      return Tone::Quiet;
  }
}

}  // namespace

SectionsModel::SectionsModel(const Session& session, QObject* parent)
    : QAbstractTableModel(parent), session_(session) {
  rows_.Follow(session_);
}

void SectionsModel::Follow() {
  const auto before = rows_.All().size();
  if (before == 0) beginResetModel();
  const bool changed = rows_.Follow(session_);
  if (before == 0) {
    endResetModel();
  } else if (changed) {
    emit dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
  }
}

int SectionsModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(rows_.All().size());
}

int SectionsModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(SizeColumn::Count);
}

QString SectionsModel::Text(const SizeResult& size, SizeColumn column) const {
  switch (column) {
    case SizeColumn::Name:
      return QString::fromStdString(size.name);
    case SizeColumn::Uls:
      return QString::fromUtf8(SaidOf(size).word);
    case SizeColumn::Governing:
      return QString::fromStdString(size.governing);
    case SizeColumn::Sls:
      return size.sls == Serviceability::None ? QString()
                                              : QString::fromUtf8(ServiceabilityWord(size.sls));
    default:
      break;
  }
  const ColumnInfo& info = InfoOf(column);
  const float value = size.*info.value;
  const bool over = column == SizeColumn::LoverZ || column == SizeColumn::LoverY;
  if ((over && value == 0) || (column == SizeColumn::Ratio && !HasRatio(size))) {
    return QStringLiteral("-");
  }
  return QString::fromStdString(session_.Shown(double(value), info.format));
}

QVariant SectionsModel::SortKey(const SizeResult& size, SizeColumn column) const {
  constexpr double last = std::numeric_limits<double>::max();
  const ColumnInfo& info = InfoOf(column);
  if (info.value == nullptr) return Text(size, column);
  const double value = double(size.*info.value);
  if (column == SizeColumn::Ratio && size.standing == Standing::Stopped) return last;
  // No deflection is less than any: L/x beyond all.
  const bool over = column == SizeColumn::LoverZ || column == SizeColumn::LoverY;
  return over && value == 0 ? last : value;
}

QVariant SectionsModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) return {};
  const SizeResult& size = rows_.All().at(static_cast<std::size_t>(index.row()));
  const auto column = static_cast<SizeColumn>(index.column());
  const bool inForce = index.row() == rows_.InForce();
  switch (role) {
    case Qt::DisplayRole:
      return inForce && column == SizeColumn::Name
                 ? Text(size, column) + QStringLiteral("  \u25C0 in force")
                 : Text(size, column);
    case Qt::TextAlignmentRole:
      return int(Qt::AlignVCenter |
                 (InfoOf(column).value != nullptr ? Qt::AlignRight : Qt::AlignLeft));
    case Qt::FontRole: {
      if (!inForce) return {};
      QFont bold;
      bold.setBold(true);
      return bold;
    }
    case SortRole:
      return SortKey(size, column);
    case ToneRole:
      return int(ToneOfCell(size, column));
    case ShareRole:
      if (column != SizeColumn::Ratio || !HasRatio(size) || !(rows_.Limit() > 0)) return {};
      return std::clamp(double(size.MaxIR) / rows_.Limit(), 0.0, 1.0);
    default:
      return {};
  }
}

QVariant SectionsModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || section < 0 || section >= columnCount()) return {};
  const ColumnInfo& info = InfoOf(static_cast<SizeColumn>(section));
  if (role == Qt::DisplayRole) return QString::fromUtf8(info.head);
  if (role == Qt::ToolTipRole) return QString::fromUtf8(info.tip);
  return {};
}

// --- Filter -------------------------------------------------------------------------------------

SectionsProxy::SectionsProxy(SectionsModel& model, QObject* parent)
    : QSortFilterProxyModel(parent), model_(model) {
  setSourceModel(&model);
  setSortRole(SectionsModel::SortRole);
  setSortLocaleAware(false);
}

void SectionsProxy::SetFilter(const SectionsFilter& filter) {
  filter_ = filter;
  wanted_ = QString::fromStdString(SectionKey(filter.name.toStdString()));
  invalidateFilter();
}

bool SectionsProxy::filterAcceptsRow(int row, const QModelIndex&) const {
  const SizeResult& size = model_.rows().All().at(static_cast<std::size_t>(row));
  if (double(size.h) > filter_.maxHeight || double(size.b) > filter_.maxWidth) return false;
  if (filter_.passing && !Passes(size, filter_.sls)) return false;
  if (!filter_.series.isEmpty() &&
      !filter_.series.contains(QString::fromStdString(SeriesWord(size.size)))) {
    return false;
  }
  return wanted_.isEmpty() || QString::fromStdString(SectionKey(size.name)).contains(wanted_);
}

// --- Cells --------------------------------------------------------------------------------------

void ToneDelegate::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const {
  QStyledItemDelegate::initStyleOption(option, index);
  const auto tone = static_cast<Tone>(index.data(SectionsModel::ToneRole).toInt());
  if (pale_) option->palette.setColor(QPalette::Text, option->palette.color(QPalette::Mid));
  if (tone == Tone::Quiet || pale_) return;
  const QColor ink = ColourFor(tone == Tone::Pass ? Role::Pass : Role::Fail, option->palette);
  option->palette.setColor(QPalette::Text, ink);
  if (tone == Tone::Fail) option->font.setBold(true);
}

void ToneDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                         const QModelIndex& index) const {
  QStyledItemDelegate::paint(painter, option, index);
  const QVariant share = index.data(SectionsModel::ShareRole);
  if (!share.isValid()) return;
  const auto tone = static_cast<Tone>(index.data(SectionsModel::ToneRole).toInt());
  const double thick = std::max(4.0, QFontMetricsF(option.font).height() * 0.32);
  const double pad = thick;
  // The figure stands right of the bar.
  const double figure = QFontMetricsF(option.font).horizontalAdvance(QStringLiteral("00000.00"));
  const QRectF cell(option.rect);
  const QRectF track(cell.left() + pad, cell.center().y() - thick / 2,
                     cell.width() - figure - 2 * pad, thick);
  if (track.width() < 2 * thick) return;
  painter->save();
  painter->setRenderHint(QPainter::Antialiasing);
  painter->setPen(Qt::NoPen);
  painter->setBrush(option.palette.color(QPalette::Mid));
  painter->setOpacity(0.55);
  painter->drawRoundedRect(track, thick / 2, thick / 2);
  painter->setOpacity(pale_ ? 0.3 : 1);
  const Role role = tone == Tone::Pass ? Role::Pass : tone == Tone::Fail ? Role::Fail : Role::Quiet;
  // On the ground of the chosen row the tones would not stand out.
  painter->setBrush(option.state.testFlag(QStyle::State_Selected)
                        ? option.palette.color(QPalette::HighlightedText)
                        : ColourFor(role, option.palette));
  const double length = std::max(thick, track.width() * share.toDouble());
  painter->drawRoundedRect(QRectF(track.topLeft(), QSizeF(length, thick)), thick / 2, thick / 2);
  painter->restore();
}

}  // namespace korvane
