// SPDX-License-Identifier: GPL-3.0-or-later
// Ties the widgets of a window to the controls of a form. Actions go to the session, and what the
// session shows comes back.
#pragma once

#include <QHash>
#include <QObject>
#include <functional>
#include <vector>

#include "front/forms/handles.h"

class QComboBox;
class QLineEdit;
class QWidget;

namespace korvane {

class Desktop;
class SizeList;
class WidgetMaker;

class FormBinder : public QObject {
  Q_OBJECT

public:
  /// Binds the widgets that the maker has made for its form, which are laid out below root.
  FormBinder(Desktop& desktop, const WidgetMaker& maker, QWidget* root);
  ~FormBinder() override;

  const Form& form() const { return form_; }
  /// All widgets show the session.
  void Refresh();
  /// Puts the keyboard focus into a field, all text selected.
  void TakeFocus(const Control& control);
  QWidget* WidgetOf(const Control& control) const;

protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

private:
  struct Bound {
    const Control* control;
    QWidget* widget;
    std::vector<QWidget*> companions;
    std::function<void()> refresh;
  };
  void BindOne(const Control& control, QWidget* widget);
  void BindEdit(Bound& bound, QLineEdit* edit);
  void BindButton(Bound& bound);
  void BindCombo(Bound& bound, QComboBox* combo);
  void BindOpenList(Bound& bound, SizeList* list);
  void Describe(const Bound& bound) const;
  bool FieldEvent(const Control& field, QLineEdit* edit, QEvent* event);
  void OfferLastAccepted(QLineEdit* edit, const QPoint& where);
  void FieldGainsFocus(const Control& field, QLineEdit* edit, Qt::FocusReason reason);

  Desktop& desktop_;
  const Form& form_;
  QWidget* root_;
  std::vector<Bound> bound_;
  QHash<const QObject*, const Control*> filtered_;
  std::vector<ShownText> values_;  ///< of the refresh that is on
};

}  // namespace korvane
