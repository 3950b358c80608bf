// SPDX-License-Identifier: GPL-3.0-or-later
// Any bytes as a table of members: every row comes out whole, without inf or nan, and two shares
// make up the same table.
#include <sstream>

#include "front/console/table.h"
#include "fuzz/fuzz_support.h"

using namespace korvane;

namespace {

std::string Designed(const std::string& table, int shard, int shards) {
  static const auto library = ReadLibrary(fuzz::OwnDataFolder());
  TableOptions options;
  options.columns = "section,weight,standing,MaxIR,IR_buckling,L_over_z,sls";
  options.jobs = 1;
  options.shard = shard;
  options.shards = shards;
  std::istringstream in(table);
  std::ostringstream out;
  std::ostringstream errors;
  TableCounts counts;
  const int status = DesignTable(library, options, in, table.size(), out, errors, false, counts);
  if (status != 0 && (status != 2 || counts.All() != 0)) std::abort();
  if (status == 2 && errors.str().empty()) std::abort();
  return out.str();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  // Headings of its own, so that most of the work is in the rows.
  const std::string rows(fuzz::Bytes(data, size));
  const std::string heading = size % 3 == 0   ? std::string()
                              : size % 3 == 1 ? "section,L,q1,NP,My_end[1],material,support\n"
                                              : "section;L;q1;NP;pm[1];pmx[1];ProfileType\n";
  const std::string whole = Designed(heading + rows, 1, 1);
  if (!heading.empty()) {
    for (const char* word : {"nan", "inf"}) {
      if (whole.find(word) != std::string::npos) std::abort();
    }
  }
  if (Designed(heading + rows, 1, 2) + Designed(heading + rows, 2, 2) != whole) std::abort();
  return 0;
}
