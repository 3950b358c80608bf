// SPDX-License-Identifier: GPL-3.0-or-later
// Reading of the steel grades, the file of the engineer's defaults, and the material step.
#include "core/setupbas.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <string_view>
#include <utility>

#include "core/field_io.h"
#include "core/text.h"

namespace korvane {
namespace {

constexpr const char* kMaterialFile = "NSmat.dat";
constexpr const char* kDefaultsFile = "default_ns.dat";
constexpr std::size_t kMostMaterials = 31;
constexpr double kThicknessLimit = 40.0;  // mm

std::string PathIn(const std::string& folder, const char* name) {
  return folder.empty() ? std::string() : folder + "/" + name;
}

// Values separated by commas or line ends; empty lines between records don't count.
class ValueReader {
public:
  explicit ValueReader(std::string_view bytes) : rest_(bytes) {}

  // A name, in quotes or up to the next separator; nothing at the end of the file.
  std::optional<std::string> Name() {
    rest_.remove_prefix(std::min(rest_.find_first_not_of(" \t\r\n"), rest_.size()));
    if (rest_.empty()) return std::nullopt;
    if (rest_.front() != '"') return ToUtf8(Value());
    rest_.remove_prefix(1);
    const std::size_t end = std::min(rest_.find('"'), rest_.size());
    std::string name = ToUtf8(rest_.substr(0, end));
    rest_.remove_prefix(end);
    Value();
    return name;
  }

  // False where no number stands that single precision can hold.
  bool Stress(float32& stress) {
    const std::string_view text = Value();
    if (!BeginsWithNumber(text)) return false;
    const float value = LeadingSingle(text);
    if (!std::isfinite(value)) return false;
    stress = static_cast<double>(value);
    return true;
  }

private:
  // The text up to the next separator, without the blanks behind it.
  std::string_view Value() {
    const std::size_t end = std::min(rest_.find_first_of(",\n"), rest_.size());
    const std::string_view value = rest_.substr(0, end);
    rest_.remove_prefix(std::min(end + 1, rest_.size()));
    return value.substr(0, value.find_last_not_of(" \t\r") + 1);
  }

  std::string_view rest_;
};

// The order of the defaults file, for reading and writing.
template <class Io, class State>
void WalkDefaults(Io& io, State& st) {
  io(st.gammam1, st.lfp_uls, st.lfv1_uls, st.lfv2_uls, st.lfp_sls, st.lfv1_sls, st.lfv2_sls,
     st.lfsw_uls, st.DeflectionLimit, st.islend_limit, st.check_slend, st.iufa, st.MaterialIndex,
     st.fyk);
}

}  // namespace

MaterialTable ReadMaterials(const std::string& folder) {
  MaterialTable table;
  const auto bytes = ReadWholeFile(PathIn(folder, kMaterialFile));
  if (!bytes) return table;
  ValueReader values(*bytes);
  while (table.rows.size() < kMostMaterials) {
    auto name = values.Name();
    if (!name) break;
    Material& row = table.rows.emplace_back();
    row.name = std::move(*name);
    if (!values.Stress(row.fykThin) || !values.Stress(row.fykThick)) break;
  }
  return table;
}

std::string DefaultsPath(const std::string& folder) {
  return PathIn(folder, kDefaultsFile);
}

void ReadDefaults(const std::string& folder, ProjectState& st) {
  const auto bytes = ReadWholeFile(DefaultsPath(folder));
  if (!bytes) return;
  FieldReader reader(*bytes, NoDigits::EndTheReading);
  try {
    WalkDefaults(reader, st);
  } catch (const PastEnd&) {
  } catch (const UnreadableNumber&) {
  } catch (const ArithmeticFault&) {
  }
}

WriteResult WriteDefaults(const std::string& folder, const ProjectState& st) {
  FieldWriter writer;
  WalkDefaults(writer, st);
  return WriteFile(DefaultsPath(folder), writer.Bytes());
}

void SetMaterial(const MaterialTable& materials, double tmax, ProjectState& st) {
  const int index = st.MaterialIndex;
  if (index < 0) throw ArithmeticFault("index out of range");
  if (index < materials.Last()) {
    const Material& row = materials.rows[static_cast<std::size_t>(index)];
    st.fyk = tmax <= kThicknessLimit ? row.fykThin : row.fykThick;
  }
  st.fd = st.fyk / st.gammam1;
  st.epsilon = std::sqrt(235.0 / st.fyk);
}

}  // namespace korvane
