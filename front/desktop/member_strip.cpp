// SPDX-License-Identifier: GPL-3.0-or-later
#include "front/desktop/member_strip.h"

#include <QPainter>
#include <QPainterPath>
#include <algorithm>

#include "core/supports.h"
#include "front/desktop/theme.h"
#include "front/painter/painter_target.h"
#include "presentation/grafik.h"
#include "presentation/symbols.h"

namespace korvane {

namespace {

/// Parts of the letters' height.
constexpr double kHeight = 2.6, kAxis = 0.75, kSign = 0.8, kMark = 0.32;

struct Marks {
  std::vector<double> restraints, chosen;  ///< relative positions
};

Marks MarksOf(const ProjectState& st) {
  Marks marks;
  for (int i = 1; i <= st.LtbSegments; ++i) marks.restraints.push_back(i / (st.LtbSegments + 1.0));
  for (int i = 1; st.cp_mode == 1 && st.L > 0 && i <= st.cp_count && i <= 3; ++i) {
    marks.chosen.push_back(std::clamp(st.cp_x[i] / st.L, 0.0, 1.0));
  }
  return marks;
}

/// "L = 5.000 m, 2 lateral restraint points, 1 calculation point"
QString Words(const Session& s, const Marks& marks) {
  QString text = QObject::tr("L = %1 m").arg(QString::fromStdString(s.Shown(s.st().L, "#0.000")));
  const auto count = [&](std::size_t n, const QString& one, const QString& more) {
    if (n > 0) text += QStringLiteral(", %1 %2").arg(n).arg(n == 1 ? one : more);
  };
  count(marks.restraints.size(), QObject::tr("lateral restraint point"),
        QObject::tr("lateral restraint points"));
  count(marks.chosen.size(), QObject::tr("calculation point"), QObject::tr("calculation points"));
  return text;
}

}  // namespace

MemberStrip::MemberStrip(const Session& session, QWidget* parent) : Pane(session, parent) {
  setObjectName(QStringLiteral("member_strip"));
}

int MemberStrip::HeightFor(double letters) {
  return qRound(letters * kHeight);
}

void MemberStrip::SetLetters(double letters) {
  letters_ = letters;
  update();
}

void MemberStrip::Refresh() {
  const QString words = Words(session_, MarksOf(session_.st()));
  setAccessibleName(words);
  setToolTip(words + tr("; a cross is a lateral restraint point, a triangle a calculation point"));
  update();
}

void MemberStrip::Draw(QPainter& painter) {
  const ProjectState& st = session_.st();
  const auto at = [this](double relative) {
    return (kMemberLeft + relative * kMemberWidth) * width() / kPictureWidth;
  };
  const double axis = letters_ * kAxis;
  {
    PainterTarget target(painter, width(), height(), rect(), DrawingColours(palette()));
    target.LineWidth = 1;
    target.ForeColor = Role::Ink;
    DrawSupports(target, st.SupportType, {at(0), axis}, {at(1), axis}, 1, letters_ * kSign);
  }
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(palette().color(QPalette::Text), 2));
  painter.drawLine(QPointF(at(0), axis), QPointF(at(1), axis));
  const Marks marks = MarksOf(st);
  const double size = letters_ * kMark;
  painter.setPen(QPen(ColourFor(Role::Accent, palette()), 1.6));
  for (const double x : marks.restraints) {
    painter.drawLine(QPointF(at(x) - size, axis - size), QPointF(at(x) + size, axis + size));
    painter.drawLine(QPointF(at(x) - size, axis + size), QPointF(at(x) + size, axis - size));
  }
  painter.setPen(Qt::NoPen);
  painter.setBrush(ColourFor(Role::Second, palette()));
  for (const double x : marks.chosen) {
    QPainterPath triangle(QPointF(at(x), axis - 1));
    triangle.lineTo(at(x) - size, axis - 2 * size);
    triangle.lineTo(at(x) + size, axis - 2 * size);
    painter.drawPath(triangle);
  }
  QFont small = font();
  small.setPixelSize(qRound(letters_));
  painter.setFont(small);
  painter.setPen(palette().color(QPalette::Text));
  painter.drawText(QRectF(at(0), axis, at(1) - at(0), height() - axis),
                   Qt::AlignHCenter | Qt::AlignBottom, Words(session_, marks));
}

}  // namespace korvane
