// SPDX-License-Identifier: GPL-3.0-or-later
#include "studies/member_inputs.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <utility>

#include "analysis/loads.h"
#include "checks/buckling_curves.h"
#include "core/supports.h"
#include "sections/names.h"

namespace korvane {

namespace {

using S = ProjectState;

template <class T>
inline constexpr bool kIsArray = false;
template <class T, int First, int Last>
inline constexpr bool kIsArray<Indexed<T, First, Last>> = true;

/// First and last index of an array field, {0, 0} for any other.
std::pair<int, int> ElementsOf(const InputField& field) {
  return std::visit(
      [](auto member) -> std::pair<int, int> {
        using Member = std::remove_cvref_t<decltype(std::declval<S&>().*member)>;
        if constexpr (kIsArray<Member>) {
          return {Member::kFirst, Member::kLast};
        } else {
          return {0, 0};
        }
      },
      field.member);
}

/// Fields that are worked out, belong to a file or to the windows.
constexpr const char* kNoInputs[] = {
    "CurrentFileName",  "CurrentDir",         "FamilyName",   "fd",
    "epsilon",          "LtbCriticalSegment", "OptimiseOpen", "ResultView",
    "FigureNotToScale", "DatabaseMode"};

bool IsInput(const InputField& field) {
  return std::none_of(std::begin(kNoInputs), std::end(kNoInputs),
                      [&](const char* name) { return std::string_view(name) == field.name; });
}

struct Word {
  const char* name;
  InputKind kind;
};
constexpr Word kWords[] = {{"section", InputKind::Section},
                           {"material", InputKind::Material},
                           {"support", InputKind::Support},
                           {"loads", InputKind::Loads}};

/// Words without blanks and dashes, in small letters.
std::string WordKey(std::string_view text) {
  std::string key;
  for (const char c : text) {
    if (c == ' ' || c == '-' || c == '_') continue;
    key += c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
  }
  return key;
}

bool Is(const MemberInput& input, InputMember member) {
  return input.ref.field != nullptr && input.ref.field->member == member;
}

/// Which inputs count in one mode alone: a force that nobody reads must not pass in silence.
bool IsEndForce(const MemberInput& input) {
  return Is(input, &S::Ne) || Is(input, &S::My_end) || Is(input, &S::Mz_end) ||
         Is(input, &S::Vy_end) || Is(input, &S::Vz_end);
}

constexpr float32 S::*kLoads[] = {&S::NP,    &S::NV1,   &S::NV2,   &S::q1,    &S::q2,
                                  &S::q3,    &S::q4,    &S::qt1_1, &S::qt1_2, &S::qt2_1,
                                  &S::qt2_2, &S::qt3_1, &S::qt3_2};

bool IsLoad(const MemberInput& input) {
  return Is(input, &S::pm) || std::any_of(std::begin(kLoads), std::end(kLoads),
                                          [&](auto load) { return Is(input, load); });
}

/// A number that takes the whole cell; nothing for anything else.
std::optional<double> NumberOf(std::string_view text, bool decimalComma, bool single) {
  std::array<char, 64> copy;
  if (text.starts_with('+')) text.remove_prefix(1);
  if (text.empty() || text.size() > copy.size()) return std::nullopt;
  if (decimalComma && text.find(',') != std::string_view::npos) {
    if (text.find('.') != std::string_view::npos) return std::nullopt;
    std::replace_copy(text.begin(), text.end(), copy.begin(), ',', '.');
    text = std::string_view(copy.data(), text.size());
  }
  // Words that stand for no number would be read as one.
  const char first = text[text.front() == '-' && text.size() > 1 ? 1 : 0];
  if (first != '.' && (first < '0' || first > '9')) return std::nullopt;
  const char* const end = text.data() + text.size();
  const auto read = [&](auto v) -> std::optional<double> {
    const auto result = std::from_chars(text.data(), end, v);
    if (result.ec != std::errc() || result.ptr != end) return std::nullopt;
    return v;
  };
  return single ? read(0.0F) : read(0.0);
}

bool IsSingle(const InputField& field) {
  return !std::holds_alternative<number S::*>(field.member) &&
         !std::holds_alternative<int16 S::*>(field.member) &&
         !std::holds_alternative<Indexed<int16, 1, 8> S::*>(field.member);
}

constexpr const char* kUnreadable = "Input string mismatch ";

/// What a number of the record must be though no form types it.
const char* CodeRefused(const MemberInput& input, const S& st, const Library& library) {
  const double code = ReadInput(st, input.ref);
  if (Is(input, &S::SupportType) && FindSupport(st.SupportType) == nullptr) {
    return "no such support";
  }
  if (Is(input, &S::ProfileType) && FindFamily(st.ProfileType) == nullptr) return "no such family";
  if (Is(input, &S::MaterialIndex) && (code < 0 || code > library.materials.Last())) {
    return "no such material";
  }
  for (const Family& family : AllFamilies()) {
    for (const FamilyCatalogue& catalogue : family.catalogues) {
      if (Is(input, catalogue.index) && (code < 0 || code >= ListLength(catalogue.cat))) {
        return "no such size";
      }
    }
  }
  return nullptr;
}

struct Cells {
  std::span<const InputCell> cells;
  bool Has(InputMember member) const {
    return std::any_of(cells.begin(), cells.end(), [&](const InputCell& cell) {
      return cell.IsGiven() && Is(*cell.input, member);
    });
  }
};

/// A factor typed is case 6 (5 of lateral buckling), a case brings its factor.
void FollowCase(const Cells& cells, float32 S::*factor, int16 S::*bucklingCase, int typed, S& st) {
  const bool hasFactor = cells.Has(factor);
  const bool hasCase = cells.Has(bucklingCase);
  if (hasFactor && !hasCase) st.*bucklingCase = typed;
  if (hasCase && !hasFactor && st.*bucklingCase < typed) {
    const double k = LengthFactorOfCase(st.*bucklingCase);
    if (k >= 0) st.*factor = k;
  }
}

RefusedInput In(const MemberInput& input, std::string message) {
  return {input.name, std::move(message)};
}

/// The number of a cell; nothing where its text is none.
std::optional<double> NumberOf(const InputCell& cell, bool decimalComma) {
  if (cell.number) return cell.number;
  const bool single = cell.input->ref.field != nullptr && IsSingle(*cell.input->ref.field);
  return NumberOf(cell.text, decimalComma, single);
}

}  // namespace

std::string RefusedInput::InColumn(std::optional<std::size_t> row) const {
  const auto first = message.find_first_not_of(' ');
  const auto last = message.find_last_not_of(' ');
  return "column " + name + (row ? ", row " + std::to_string(*row) : "") + ": " +
         message.substr(first, last - first + 1);
}

std::optional<MemberInput> FindMemberInput(std::string_view name, const ProjectState& st) {
  for (const Word& word : kWords) {
    if (name == word.name) return MemberInput{word.kind, word.name, {}};
  }
  if (name == "N") name = st.AnalysisMode == 1 ? "NP" : "Ne";
  const auto bracket = name.find('[');
  const InputField* field = FindInputField(name.substr(0, bracket));
  if (field == nullptr || !IsInput(*field)) return std::nullopt;
  const auto [first, last] = ElementsOf(*field);
  int element = 0;
  if ((bracket != std::string_view::npos) != (last > 0)) return std::nullopt;
  if (last > 0) {
    const std::string_view index = name.substr(bracket + 1);
    const auto read = std::from_chars(index.data(), index.data() + index.size(), element);
    if (read.ec != std::errc() || index.substr(read.ptr - index.data()) != "]") return std::nullopt;
    if (element < first || element > last) return std::nullopt;
  }
  return MemberInput{
      IsText(*field) ? InputKind::Text : InputKind::Field, std::string(name), {field, element}};
}

std::vector<std::string> MemberInputNames() {
  std::vector<std::string> names;
  for (const Word& word : kWords) names.emplace_back(word.name);
  for (const InputField& field : AllInputFields()) {
    if (!IsInput(field)) continue;
    const auto [first, last] = ElementsOf(field);
    if (last == 0) names.emplace_back(field.name);
    for (int i = first; last > 0 && i <= last; ++i) {
      names.push_back(field.name + ("[" + std::to_string(i) + "]"));
    }
  }
  return names;
}

const char* UnitOf(const MemberInput& input) {
  return input.ref.field == nullptr ? "" : input.ref.field->unit;
}

std::string RangeOf(const MemberInput& input, const ProjectState& st) {
  if (input.ref.field == nullptr) return {};
  const Limit limit = LimitOf(st, input.ref);
  return HasLimit(limit) ? RangeWords(limit) : std::string();
}

MemberInputs::MemberInputs(std::shared_ptr<const Library> library)
    : library_(std::move(library)), names_(library_->catalogues) {}

std::optional<RefusedInput> MemberInputs::SetWord(const InputCell& cell, bool decimalComma,
                                                  ProjectState& st) const {
  const std::string text(cell.text);
  switch (cell.input->kind) {
    case InputKind::Section: {
      std::string name = text;
      if (decimalComma) std::replace(name.begin(), name.end(), ',', '.');
      if (!names_.Take(name, st)) return In(*cell.input, "no such section - " + text);
      return std::nullopt;
    }
    case InputKind::Material: {
      const auto& rows = library_->materials.rows;
      const auto row = std::find_if(rows.begin(), rows.end(), [&](const Material& material) {
        return WordKey(material.name) == WordKey(text);
      });
      if (row == rows.end()) return In(*cell.input, "no such material - " + text);
      st.MaterialIndex = static_cast<int>(row - rows.begin());
      return std::nullopt;
    }
    case InputKind::Support: {
      for (const Support& support : kSupports) {
        if (WordKey(support.name) != WordKey(text)) continue;
        TakeSupport(support, st);
        return std::nullopt;
      }
      return In(*cell.input, "no such support - " + text);
    }
    case InputKind::Text:
      st.*std::get<std::string S::*>(cell.input->ref.field->member) = text;
      return std::nullopt;
    case InputKind::Loads:
    case InputKind::Field:
      break;
  }
  return std::nullopt;
}

std::optional<RefusedInput> MemberInputs::Refused(const MemberInput& input,
                                                  const ProjectState& st) const {
  const Limit limit = LimitOf(st, input.ref);
  const double value = ReadInput(st, input.ref);
  if (!Accepts(limit, value)) return In(input, limit.message);
  if (const char* code = CodeRefused(input, st, *library_)) return In(input, code);
  if (value == 0) return std::nullopt;
  if (IsEndForce(input) && st.AnalysisMode == 1) {
    return In(input, "end forces count with AnalysisMode 0 alone");
  }
  if (IsLoad(input) && st.AnalysisMode != 1) {
    return In(input, "loads count with AnalysisMode 1 alone");
  }
  if (Is(input, &S::fyk) && st.MaterialIndex < library_->materials.Last()) {
    return In(input,
              "counts with the material \"" + library_->materials.rows.back().name + "\" alone");
  }
  return std::nullopt;
}

std::optional<RefusedInput> MemberInputs::Put(std::span<const InputCell> cells, bool decimalComma,
                                              ProjectState& st) const {
  const auto isNumber = [](const InputCell& cell) {
    return cell.input->kind == InputKind::Field || cell.input->kind == InputKind::Loads;
  };
  for (const InputCell& cell : cells) {
    if (!cell.IsGiven() || isNumber(cell)) continue;
    if (auto refused = SetWord(cell, decimalComma, st)) return refused;
  }
  double factor = 1;
  for (const InputCell& cell : cells) {
    if (!cell.IsGiven() || !isNumber(cell)) continue;
    const bool loads = cell.input->kind == InputKind::Loads;
    const auto value = NumberOf(cell, decimalComma);
    if (!value) return In(*cell.input, kUnreadable);
    try {
      loads ? void(factor = *value) : PutInput(st, cell.input->ref, *value);
    } catch (const ArithmeticFault& fault) {
      return In(*cell.input, fault.what());
    }
  }
  const Cells given{cells};
  FollowCase(given, &S::bly, &S::BucklingCaseY, 6, st);
  FollowCase(given, &S::blz, &S::BucklingCaseZ, 6, st);
  FollowCase(given, &S::k_ltb, &S::LateralBucklingCase, 5, st);
  for (const InputCell& cell : cells) {
    if (!cell.IsGiven()) continue;
    if (cell.input->kind == InputKind::Field) {
      if (auto refused = Refused(*cell.input, st)) return refused;
    } else if (cell.input->kind == InputKind::Section) {
      // Dimensions in a name are typed ones too. A family typed beside the name may not exist,
      // which its own cell tells.
      const Family* family = FindFamily(st.ProfileType);
      if (family == nullptr) continue;
      for (std::size_t i = 0; i < family->titled; ++i) {
        const InputRef ref = std::visit([](auto member) { return InputOf(InputMember(member)); },
                                        family->dimensions[i].field);
        const Limit limit = LimitOf(st, ref);
        if (!Accepts(limit, ReadInput(st, ref))) return In(*cell.input, limit.message);
      }
    }
  }
  if (factor != 1) {
    try {
      ScaleLoads(factor, st);
    } catch (const ArithmeticFault& fault) {
      return RefusedInput{"loads", fault.what()};
    }
  }
  return std::nullopt;
}

std::optional<std::string> MemberInputs::Set(std::span<const InputCell> cells, bool decimalComma,
                                             ProjectState& st) const {
  const auto refused = Put(cells, decimalComma, st);
  return refused ? std::optional(refused->InColumn()) : std::nullopt;
}

std::optional<std::string> MemberInputs::Set(const MemberInput& input, double value,
                                             ProjectState& st) const {
  const InputCell cell{&input, {}, value};
  return Set({&cell, 1}, false, st);
}

void ScaleLoads(double factor, ProjectState& st) {
  for (auto load : kLoads) st.*load = st.*load * factor;
  for (float32& item : st.pm) item = item * factor;
  st.Ne = st.Ne * factor;
  for (auto* ends : {&st.My_end, &st.Mz_end, &st.Vy_end, &st.Vz_end}) {
    for (float32& force : *ends) force = force * factor;
  }
}

}  // namespace korvane
