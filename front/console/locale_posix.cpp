// SPDX-License-Identifier: GPL-3.0-or-later
#include <langinfo.h>
#include <locale.h>  // NOLINT(modernize-deprecated-headers): newlocale is of POSIX

#include <algorithm>
#include <array>
#include <cstdlib>
#include <string>

#include "front/console/locale.h"

namespace korvane {

bool LocaleWritesComma() {
  for (const char* name : {"LC_ALL", "LC_NUMERIC", "LANG"}) {
    const char* value = std::getenv(name);
    if (value == nullptr || *value == '\0') continue;
    if (locale_t locale = newlocale(LC_NUMERIC_MASK, value, static_cast<locale_t>(nullptr))) {
      const bool comma = *nl_langinfo_l(RADIXCHAR, locale) == ',';
      freelocale(locale);
      return comma;
    }
    // A locale that the machine has not generated: the language decides.
    static constexpr std::array comma{"nb", "nn", "no", "da", "sv", "fi", "is", "de", "fr", "nl",
                                      "it", "es", "pt", "pl", "cs", "sk", "hu", "ru", "et", "lv",
                                      "lt", "ro", "bg", "el", "tr", "uk", "sl", "hr"};
    const std::string language = std::string(value).substr(0, 2);
    return std::any_of(comma.begin(), comma.end(),
                       [&](const char* code) { return language == code; });
  }
  return false;
}

}  // namespace korvane
