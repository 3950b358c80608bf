// SPDX-License-Identifier: GPL-3.0-or-later
// The table of all sections as Qt's views read it, its filters, and the cell with the bar.
#pragma once

#include <QAbstractTableModel>
#include <QSet>
#include <QSortFilterProxyModel>
#include <QStyledItemDelegate>
#include <limits>
#include <utility>

#include "front/section_rows.h"

namespace korvane {

class Session;

/// The columns in their order.
enum class SizeColumn {
  Name,
  Height,
  Width,
  Weight,
  Surface,
  TotalWeight,
  TotalSurface,
  Ratio,
  Uls,
  Governing,
  LoverZ,
  LoverY,
  Sls,
  Count
};

class SectionsModel : public QAbstractTableModel {
  Q_OBJECT

public:
  enum Role {
    SortRole = Qt::UserRole,  ///< a number, or the text of a column of words
    ToneRole,                 ///< Headline::Tone of the cell
    ShareRole                 ///< of the limit, in the column of the ratio
  };
  explicit SectionsModel(const Session& session, QObject* parent = nullptr);

  /// Takes over what the session shows now; the views keep their places.
  void Follow();
  const SectionRows& rows() const { return rows_; }

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
  QString Text(const SizeResult& size, SizeColumn column) const;
  QVariant SortKey(const SizeResult& size, SizeColumn column) const;
  const Session& session_;
  SectionRows rows_;
};

/// What a person wants to see of them.
struct SectionsFilter {
  QString name;  ///< a part of the name; blanks, case and the sign between sizes don't matter
  QSet<QString> series;                                        ///< words of series; empty: all
  double maxHeight = std::numeric_limits<double>::infinity();  ///< mm
  double maxWidth = std::numeric_limits<double>::infinity();   ///< mm
  bool passing = false;                                        ///< those alone that pass
  bool sls = false;  ///< passing holds the deflection limit too
};

class SectionsProxy : public QSortFilterProxyModel {
  Q_OBJECT

public:
  explicit SectionsProxy(SectionsModel& model, QObject* parent = nullptr);
  void SetFilter(const SectionsFilter& filter);

protected:
  bool filterAcceptsRow(int row, const QModelIndex& parent) const override;

private:
  const SectionsModel& model_;
  SectionsFilter filter_;
  QString wanted_;  ///< the part of the name as names are compared
};

/// Paints words and figures in the tone of the headline, and a bar to the limit behind a ratio.
class ToneDelegate : public QStyledItemDelegate {
  Q_OBJECT

public:
  using QStyledItemDelegate::QStyledItemDelegate;
  /// Pale figures don't hold at present. True where that is new.
  bool SetPale(bool pale) { return std::exchange(pale_, pale) != pale; }
  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override;

protected:
  void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;

private:
  bool pale_ = false;
};

}  // namespace korvane
