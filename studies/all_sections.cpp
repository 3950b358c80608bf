// SPDX-License-Identifier: GPL-3.0-or-later
#include "studies/all_sections.h"

#include <algorithm>
#include <atomic>
#include <exception>

#include "checks/results.h"
#include "sections/names.h"
#include "studies/in_order.h"
#include "studies/member.h"
#include "studies/result_columns.h"

namespace korvane {

namespace {

/// What a thread takes at once: many enough that taking is nothing, few enough that all end at
/// once.
constexpr std::size_t kSizesAtOnce = 64;

std::vector<CatalogueSize> MakeSizes() {
  std::vector<CatalogueSize> sizes;
  for (const Family& family : AllFamilies()) {
    for (const FamilyCatalogue& catalogue : family.catalogues) {
      for (int row = 0; row < ListLength(catalogue.cat); ++row) {
        sizes.push_back({&family, &catalogue, row, false});
        if (CanBeTurned(catalogue.cat)) sizes.push_back({&family, &catalogue, row, true});
      }
    }
  }
  return sizes;
}

/// "RHS 50x30x3" with h and b exchanged.
std::string TurnedName(const std::string& name) {
  const auto digit = name.find_first_of("0123456789");
  const auto first = name.find('x', digit);
  const auto second = name.find('x', first + 1);
  if (second == std::string::npos) return name;
  return name.substr(0, digit) + name.substr(first + 1, second - first - 1) + "x" +
         name.substr(digit, first - digit) + name.substr(second);
}

}  // namespace

std::span<const CatalogueSize> AllSizes() {
  static const std::vector<CatalogueSize> sizes = MakeSizes();
  return sizes;
}

std::string SeriesWord(const CatalogueSize& size) {
  if (size.family->search.name != nullptr) return size.family->search.name;
  if (*size.catalogue->word != '\0') return size.catalogue->word;
  return size.family->menuCaption;
}

bool Passes(const SizeResult& r, bool sls) {
  return r.standing == Standing::Passes && !(sls && r.sls == Serviceability::Fails);
}

ProjectState WithSize(const ProjectState& member, const CatalogueSize& size) {
  ProjectState st = member;
  TakeSize(size, st);
  return st;
}

std::vector<std::string> NamesOfSeries(std::string_view word, const Catalogues& cat) {
  const std::string wanted = SectionKey(word);
  std::vector<std::string> names;
  ProjectState st;
  for (const CatalogueSize& size : AllSizes()) {
    if (size.turned || size.family->titled > 0 || SectionKey(SeriesWord(size)) != wanted) continue;
    TakeSize(size, st);
    names.push_back(SectionTitle(st, cat));
  }
  return names;
}

std::string SectionName(const ProjectState& st, const Catalogues& cat) {
  std::string name = SectionTitle(st, cat);
  // The blank that stands for the sign of each number.
  for (std::size_t at = name.find("x "); at != std::string::npos; at = name.find("x ", at)) {
    name.erase(at + 1, 1);
  }
  for (std::size_t at = name.find("  "); at != std::string::npos; at = name.find("  ", at)) {
    name.erase(at, 1);
  }
  while (name.ends_with(' ')) name.pop_back();
  const SizeList list = SizesOf(st);
  const bool turned = list.hasCatalogue && CanBeTurned(list.catalogue) && st.RhsOrientation == 0;
  return turned ? TurnedName(name) : name;
}

SizeResult DesignSize(const Design& started, const ProjectState& member, const CatalogueSize& size,
                      Design& work) {
  SizeResult result;
  result.size = size;
  const ProjectState input = WithSize(member, size);
  const MemberRun run = DesignMember(started, input, work, Lines::None);
  const Verdict verdict = VerdictOf(work);
  result.name = SectionName(input, work.lib->catalogues);
  result.standing = verdict.standing;
  result.sls = verdict.sls;
  result.h = work.rec.h.Single();
  result.b = work.rec.b.Single();
  result.weight = work.rec.S.Single();
  result.surface = work.rec.g.Single();
  result.totalWeight = float32(work.rec.S * member.L).Single();
  result.totalSurface = float32(work.rec.g * member.L).Single();
  if (run.fault) return result;
  result.MaxIR = MaxIR(work.checks);
  result.governing = GoverningLabel(verdict);
  result.LoverZ = LengthOverDeflectionZ(work).value_or(0.0F);
  result.LoverY = LengthOverDeflectionY(work).value_or(0.0F);
  return result;
}

std::vector<SizeResult> DesignSizes(const Design& started, const ProjectState& member,
                                    const std::function<bool(const CatalogueSize&)>& wanted) {
  std::vector<const CatalogueSize*> sizes;
  for (const CatalogueSize& size : AllSizes()) {
    if (!wanted || wanted(size)) sizes.push_back(&size);
  }
  std::vector<SizeResult> results(sizes.size());
  std::vector<std::exception_ptr> failures(sizes.size() / kSizesAtOnce + 1);
  std::atomic<std::size_t> next = 0;
  const auto work = [&] {
    Design design = started;
    for (std::size_t piece; (piece = next++) * kSizesAtOnce < sizes.size();) {
      try {
        const std::size_t first = piece * kSizesAtOnce;
        for (std::size_t i = first; i < std::min(first + kSizesAtOnce, sizes.size()); ++i) {
          results[i] = DesignSize(started, member, *sizes[i], design);
        }
      } catch (...) {
        failures[piece] = std::current_exception();
      }
    }
  };
  {
    // This thread works too; the others end with the block.
    const auto others = StartThreads(ThreadsFor(0, failures.size()) - 1, work);
    work();
  }
  for (const std::exception_ptr& failure : failures) {
    if (failure) std::rethrow_exception(failure);
  }
  return results;
}

}  // namespace korvane
