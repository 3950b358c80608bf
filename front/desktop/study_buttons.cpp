// SPDX-License-Identifier: GPL-3.0-or-later
#include "front/desktop/study_buttons.h"

#include <QLayout>
#include <QPushButton>

#include "front/desktop/desktop.h"
#include "front/desktop/main_window.h"
#include "front/desktop/sections_window.h"
#include "front/desktop/what_if_window.h"

namespace korvane {

namespace {

/// A button that opens its window, after the field in use has been left.
template <class Window>
void AddButton(Desktop& desktop, QLayout* row, const char* name, const QString& caption,
               const QString& tip) {
  auto* button = new QPushButton(caption);
  button->setObjectName(QString::fromUtf8(name));
  button->setAccessibleName(QString(caption).remove(QLatin1Char('&')));
  button->setToolTip(tip);
  row->addWidget(button);
  QObject::connect(button, &QPushButton::clicked, &desktop,
                   [&desktop, window = static_cast<Window*>(nullptr)]() mutable {
                     if (desktop.Busy() || !desktop.Commit()) return;
                     if (window == nullptr) window = new Window(desktop, &desktop.window());
                     window->Open();
                   });
}

}  // namespace

void AddStudyButtons(Desktop& desktop, QLayout* row) {
  AddButton<SectionsWindow>(desktop, row, "open_sections", QObject::tr("Sections"),
                            QObject::tr("Every size of all catalogues for this member"));
  AddButton<WhatIfWindow>(desktop, row, "open_whatif", QObject::tr("What if"),
                          QObject::tr("Curves over a varied input: how far it can go"));
}

}  // namespace korvane
