// SPDX-License-Identifier: GPL-3.0-or-later
// A desktop with the platform of the program itself: real dialogs, boxes and printers.
#pragma once

#include <gtest/gtest.h>

#include <QTemporaryDir>
#include <QtTest>

#include "front/desktop/desktop.h"
#include "front/desktop/desktop_platform.h"
#include "front/desktop/main_window.h"
#include "tests/support/source_library.h"

namespace korvane {

class RealDesktopTest : public testing::Test {
protected:
  RealDesktopTest()
      : library_(SourceLibrary()),
        session_(library_, platform_, false,
                 Folders{library_->folder, folder_.path().toStdString()}) {
    session_.Start();
    desktop_ = std::make_unique<Desktop>(session_);
    platform_.SetWindow(&Main());
    platform_.SetSession(session_);
    QObject::connect(&platform_, &DesktopPlatform::Progressed, &Main(), &MainWindow::ShowProgress);
    Main().show();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&Main()));
  }
  MainWindow& Main() { return desktop_->window(); }

  QTemporaryDir folder_;
  DesktopPlatform platform_;
  std::shared_ptr<const Library> library_;
  NamedSession session_;
  std::unique_ptr<Desktop> desktop_;
};

}  // namespace korvane
