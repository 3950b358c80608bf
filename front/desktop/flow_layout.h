// SPDX-License-Identifier: GPL-3.0-or-later
// A row of widgets that takes another line where it has no room.
#pragma once

#include <QLayout>
#include <QList>

namespace korvane {

class FlowLayout : public QLayout {
public:
  /// gap: between neighbours and between lines, pixels.
  explicit FlowLayout(int gap);
  ~FlowLayout() override;

  void addItem(QLayoutItem* item) override { items_.append(item); }
  int count() const override { return static_cast<int>(items_.size()); }
  QLayoutItem* itemAt(int index) const override { return items_.value(index); }
  QLayoutItem* takeAt(int index) override;
  Qt::Orientations expandingDirections() const override { return {}; }
  bool hasHeightForWidth() const override { return true; }
  int heightForWidth(int width) const override { return Arrange(QRect(0, 0, width, 0), false); }
  void setGeometry(const QRect& room) override;
  /// All in one line.
  QSize sizeHint() const override;
  /// The widest alone.
  QSize minimumSize() const override;

private:
  /// Lays the items out in a room where `place` says so; the height that they take.
  int Arrange(const QRect& room, bool place) const;
  QList<QLayoutItem*> items_;
  int gap_;
};

}  // namespace korvane
