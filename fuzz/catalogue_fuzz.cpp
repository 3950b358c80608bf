// SPDX-License-Identifier: GPL-3.0-or-later
// Any bytes as a catalogue: the first says which of the files, the second which row; the design
// of that row in each family that lists it has finite results or a named failure.
#include "fuzz/fuzz_support.h"
#include "sections/names.h"
#include "sections/profile_table.h"

using namespace korvane;

namespace {

void ChooseRow(ProjectState& st, int row) {
  for (int16 ProjectState::*index :
       {&ProjectState::idxHEA, &ProjectState::idxHEB, &ProjectState::idxHEM, &ProjectState::idxIPE,
        &ProjectState::idxUPE, &ProjectState::idxRHSs, &ProjectState::idxRHSr,
        &ProjectState::idxCFRHSs, &ProjectState::idxCFRHSr, &ProjectState::idxLeq,
        &ProjectState::idxLuneq, &ProjectState::idxINP, &ProjectState::idxUNP,
        &ProjectState::p101_idx1, &ProjectState::p101_idx2, &ProjectState::p101_idx3,
        &ProjectState::p102_idx, &ProjectState::p103_idx1, &ProjectState::p103_idx2}) {
    st.*index = row;
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const std::string folder = fuzz::OwnDataFolder();
  if (size < 2) return 0;
  const auto cat = static_cast<Cat>(data[0] % static_cast<int>(Cat::Count));
  const std::string path = folder + "/" + ShapeOf(cat).file;
  const std::string kept = path + ".kept";
  std::filesystem::rename(path, kept);
  fuzz::Write(path, fuzz::Bytes(data + 2, size - 2));
  Design design(ReadLibrary(folder));
  std::filesystem::rename(kept, path);
  StartDesign(design);
  ChooseRow(design.st, data[1]);
  for (const Family& family : AllFamilies()) {
    for (int sub = 1; sub <= 3; ++sub) {
      design.st.ProfileType = family.code;
      design.st.p101_sub = sub;
      design.st.p103_sub = sub;
      if (const SizeList list = SizesOf(design.st); list.hasCatalogue && list.catalogue == cat) {
        fuzz::CalculateOrFail(design);
      }
    }
  }
  return 0;
}
