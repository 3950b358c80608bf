// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/windows_text.h"
#include "front/console/locale.h"

namespace korvane {

bool LocaleWritesComma() {
  constexpr int most = 4;  // characters of a separator, with the zero behind it
  wchar_t separator[most] = {};
  const int size = ::GetLocaleInfoEx(LOCALE_NAME_USER_DEFAULT, LOCALE_SDECIMAL, separator, most);
  return size > 1 && separator[0] == L',';
}

}  // namespace korvane
