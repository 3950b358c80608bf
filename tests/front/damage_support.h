// SPDX-License-Identifier: GPL-3.0-or-later
// What the tests of damaged and missing files share.
#pragma once

#include <gtest/gtest.h>

#include <cmath>
#include <string>

#include "tests/core/temp_folder.h"
#include "tests/front/front_support.h"

namespace korvane::testing {

/// The program writes into the folder; its catalogues are the real ones.
inline Folders OwnFolder(const TempFolder& folder) {
  Folders folders;
  folders.own = folder.Path();
  return folders;
}

/// The program still takes a length and designs with it.
inline void ExpectAlive(Running& r, const std::string& after) {
  ASSERT_NO_THROW(r.session.Focus("korvane")) << after;
  EXPECT_TRUE(r.session.Enter("korvane.il", "4.5")) << after;
  EXPECT_EQ(r.st().L, 4.5) << after;
  EXPECT_TRUE(std::isfinite(double(MaxIR(r.session.design().checks)))) << after;
}

/// A session with one row in its list whose form is open.
inline void CollectOne(Running& r) {
  r.session.Menu("mnup01");
  r.session.Click("addtodb");
  r.session.Close("p01");
  r.session.Menu("mnudb");
}

}  // namespace korvane::testing
