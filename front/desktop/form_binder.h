// SPDX-License-Identifier: GPL-3.0-or-later
// Ties the widgets of a window to the controls of a form: the objectName of a widget is the name
// of its control. Actions go to the session, and what the session shows comes back.
#pragma once

#include <QObject>
#include <QPalette>
#include <functional>
#include <string>
#include <vector>

#include "front/form_table.h"

class QWidget;
class QLineEdit;

namespace korvane {

class Desktop;

/// Name of the dynamic property with which a caption or unit belongs to a control.
inline constexpr const char* kBelongsTo = "belongsTo";

class FormBinder : public QObject {
  Q_OBJECT

public:
  /// Binds all widgets below root; root's form has been laid out.
  FormBinder(Desktop& desktop, const Form& form, QWidget* root);
  ~FormBinder() override;

  const Form& form() const { return form_; }
  /// All widgets show the session.
  void Refresh();
  /// Puts the keyboard focus into a field, all text selected.
  void TakeFocus(const std::string& control);
  QWidget* WidgetOf(const std::string& control) const;

protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

private:
  struct Bound {
    const Control* control;
    std::string key;
    QWidget* widget;
    std::vector<QWidget*> companions;
    std::function<void()> refresh;
  };
  void BindOne(const Control& control, QWidget* widget);
  void BindEdit(Bound& bound, QLineEdit* edit);
  void BindButton(Bound& bound);
  void BindList(Bound& bound);
  void Describe(const Bound& bound) const;
  /// The tip of a field whose limit follows another input, as the limit stands now.
  void RenewTip(QLineEdit* edit) const;

  Desktop& desktop_;
  const Form& form_;
  QWidget* root_;
  std::vector<Bound> bound_;
};

}  // namespace korvane
