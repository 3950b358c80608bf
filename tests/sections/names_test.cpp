// SPDX-License-Identifier: GPL-3.0-or-later
// Names of sections: the entry of every size list, the list that each family shows, titles of
// typed sections.
#include "sections/names.h"

#include <gtest/gtest.h>

#include "tests/sections/section_support.h"
#include "tests/support/source_library.h"

namespace korvane {
namespace {

struct FirstEntry {
  Cat catalogue;
  const char* entry;
};

TEST(Names, FirstEntryOfEveryCatalogue) {
  const FirstEntry entries[] = {{Cat::HEA, "HEA 100"},
                                {Cat::HEB, "HEB 100"},
                                {Cat::HEM, "HEM 100"},
                                {Cat::IPE, "IPE 80"},
                                {Cat::UPE, "UPE 80"},
                                {Cat::INP, "INP 80"},
                                {Cat::UNP, "UNP 80"},
                                {Cat::SHS, "RHS  40x 40x 3.2"},
                                {Cat::RHS, "RHS  50x 30x 2.6"},
                                {Cat::CFSHS, "CFRHS  40x 40x 2.5"},
                                {Cat::CFRHS, "CFRHS  50x 30x 2.5"},
                                {Cat::L1, "L  20x 20x 3"},
                                {Cat::L2, "L  30x 20x 3"},
                                {Cat::L3, "L  200x 90x 8x 14"},
                                {Cat::HP, "HP  80x 5"},
                                {Cat::UB, "UB  1016x 305x 487"},
                                {Cat::UC, "UC  356x 406x 634"},
                                {Cat::UBP, "UBP  356x 368x 174"},
                                {Cat::J, "J  254x 203x 82"},
                                {Cat::PFC, "PFC  430x 100x 64"},
                                {Cat::CH, "CH  432x 102x 65"}};
  for (const FirstEntry& e : entries) {
    EXPECT_EQ(ListEntry(e.catalogue, SourceLibrary()->catalogues, 0), e.entry);
  }
}

struct ListOf {
  int family;
  int sub;  ///< of 101 and 103
  bool catalogue;
  Cat list;
};

TEST(Names, ListOfEveryFamilyAndItsChosenRow) {
  const ListOf lists[] = {
      {1, 1, true, Cat::HEA},   {2, 1, true, Cat::HEB},   {3, 1, true, Cat::HEM},
      {4, 1, true, Cat::IPE},   {5, 1, true, Cat::UPE},   {6, 1, true, Cat::SHS},
      {7, 1, true, Cat::RHS},   {8, 1, true, Cat::CFSHS}, {9, 1, true, Cat::CFRHS},
      {10, 1, true, Cat::L1},   {11, 1, true, Cat::L2},   {15, 1, true, Cat::INP},
      {16, 1, true, Cat::UNP},  {52, 1, true, Cat::L3},   {54, 1, true, Cat::HP},
      {101, 1, true, Cat::UB},  {101, 2, true, Cat::UC},  {101, 3, true, Cat::UBP},
      {102, 1, true, Cat::J},   {103, 1, true, Cat::PFC}, {103, 2, true, Cat::CH},
      {21, 1, false, Cat::HEA}, {22, 1, false, Cat::HEA}, {23, 1, false, Cat::HEA},
      {24, 1, false, Cat::HEA}, {25, 1, false, Cat::HEA}, {26, 1, false, Cat::HEA},
      {27, 1, false, Cat::HEA}, {28, 1, false, Cat::HEA}, {31, 1, false, Cat::HEA},
      {41, 1, false, Cat::HEA}, {51, 1, false, Cat::HEA}, {53, 1, false, Cat::HEA},
      {55, 1, false, Cat::HEA}, {56, 1, false, Cat::HEA},
  };
  ProjectState st;
  // Every family has a row of its own, all different.
  st.idxHEA = 1;
  st.idxHEB = 2;
  st.idxHEM = 3;
  st.idxIPE = 4;
  st.idxUPE = 5;
  st.idxRHSs = 6;
  st.idxRHSr = 7;
  st.idxCFRHSs = 8;
  st.idxCFRHSr = 9;
  st.idxLeq = 10;
  st.idxLuneq = 11;
  st.idxINP = 12;
  st.idxUNP = 13;
  st.p52_index = 14;
  st.p54_index = 15;
  st.p101_idx1 = 16;
  st.p101_idx2 = 17;
  st.p101_idx3 = 18;
  st.p102_idx = 19;
  st.p103_idx1 = 20;
  st.p103_idx2 = 21;
  int row = 0;
  for (const ListOf& l : lists) {
    SCOPED_TRACE(l.family * 10 + l.sub);
    st.ProfileType = l.family;
    st.p101_sub = l.sub;
    st.p103_sub = l.sub;
    const SizeList sizes = SizesOf(st);
    EXPECT_EQ(sizes.hasCatalogue, l.catalogue);
    if (!l.catalogue) continue;
    EXPECT_EQ(sizes.catalogue, l.list);
    EXPECT_EQ(sizes.row, ++row);
  }
  EXPECT_EQ(row, 21);
}

struct Title {
  int family;
  const char* title;
  const char* dimensions;
};

TEST(Names, TitlesOfTypedSections) {
  ProjectState st;
  const auto set = [](auto&... fields) {
    double value = 10;
    ((fields = value, value += 1.5), ...);
  };
  set(st.p21_h, st.p21_b, st.p21_tw, st.p21_tf);
  set(st.p22_h, st.p22_b, st.p22_b2, st.p22_tw, st.p22_tf1, st.p22_tf2);
  set(st.p23_h, st.p23_b, st.p23_tw, st.p23_tf);
  set(st.p24_h, st.p24_b, st.p24_tw, st.p24_tf1, st.p24_tf2);
  set(st.p25_h, st.p25_b1, st.p25_b2, st.p25_tw, st.p25_tf1, st.p25_tf2);
  set(st.p26_h, st.p26_b, st.p26_tw, st.p26_tf);
  set(st.p27_h, st.p27_b1, st.p27_b2, st.p27_tw, st.p27_tf1, st.p27_tf2);
  set(st.p28_h, st.p28_tw);
  set(st.p31_d, st.p31_tw);
  set(st.p51_b, st.p51_tf1, st.p51_h, st.p51_tw);
  set(st.p52_b1, st.p52_t1);
  set(st.p53_b1, st.p53_tf1, st.p53_h, st.p53_b2, st.p53_tw, st.p53_tf2);
  set(st.p54_b1, st.p54_t1);
  set(st.p55_b1, st.p55_tf1, st.p55_h, st.p55_b2, st.p55_tw);
  set(st.p56_b1, st.p56_tf1, st.p56_h, st.p56_b2, st.p56_tw, st.p56_tf2);
  st.p52_index = 0;
  st.p54_index = 0;
  const Title titles[] = {
      {21, "I 10x11.5x13x14.5", "10x11.5x13x14.5"},
      {22, "I 10x11.5x13x14.5x16x17.5", "10x11.5x13x14.5x16x17.5"},
      {23, "Box 10x11.5x13x14.5", "10x11.5x13x14.5"},
      {24, "HSQ 10x11.5x13x14.5x16", "10x11.5x13x14.5x16"},
      {25, "HSQ 10x11.5x13x14.5x16x17.5", "10x11.5x13x14.5x16x17.5"},
      {26, "T 10x11.5x13x14.5", "10x11.5x13x14.5"},
      {27, "Box 10x11.5x13x14.5x16x17.5", "10x11.5x13x14.5x16x17.5"},
      {28, "Fb 10x11.5", "10x11.5"},
      {31, "Tube 10x11.5", "10x11.5"},
      {41, "General profile", ""},
      {51, "Plate + Fb 10x11.5x13x14.5", "10x11.5x13x14.5"},
      {52, "Plate + 10x11.5 + L  200x 90x 8x 14", "10x11.5 + L 200x90x8x14"},
      {53, "Plate + L 10x11.5x13x14.5x16x17.5", "10x11.5x13x14.5x16x17.5"},
      {54, "Plate + 10x11.5 + HP  80x 5", "10x11.5 + HP 80x5"},
      {55, "Plate + Trapez 10x11.5x13x14.5x16", "10x11.5x13x14.5x16"},
      {56, "Plate + T 10x11.5x13x14.5x16x17.5", "10x11.5x13x14.5x16x17.5"},
      {77, "", ""},
  };
  for (const Title& t : titles) {
    SCOPED_TRACE(t.family);
    st.ProfileType = t.family;
    EXPECT_EQ(SectionTitle(st, SourceLibrary()->catalogues), t.title);
    EXPECT_EQ(NameDimensions(st, SourceLibrary()->catalogues), t.dimensions);
  }
}

TEST(Names, TitlesOfCatalogueSections) {
  ProjectState st;
  st.ProfileType = 1;
  st.idxHEA = 5;
  EXPECT_EQ(SectionTitle(st, SourceLibrary()->catalogues), "HEA200");
  EXPECT_EQ(NameDimensions(st, SourceLibrary()->catalogues), "200");
  st.idxHEA = -1;
  EXPECT_EQ(SectionTitle(st, SourceLibrary()->catalogues), "");
  st.idxHEA = 30000;
  EXPECT_EQ(SectionTitle(st, SourceLibrary()->catalogues), "");
  st.ProfileType = 6;
  EXPECT_EQ(SectionTitle(st, SourceLibrary()->catalogues), "RHS  40x 40x 3.2");
}

TEST(Names, NumbersWithoutTheBlankOfTheirSign) {
  EXPECT_EQ(Plain(12.5), "12.5");
  EXPECT_EQ(Plain(-3), "-3");
  EXPECT_EQ(Plain(8.1F), "8.1");
}

}  // namespace
}  // namespace korvane
