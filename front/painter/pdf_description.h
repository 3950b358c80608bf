// SPDX-License-Identifier: GPL-3.0-or-later
// What Qt's writer leaves out of a PDF: author, subject and language.
#pragma once

#include <string>

namespace korvane {

/// UTF-8.
struct PdfDescription {
  std::string author, subject;
  std::string language;  ///< "en"
};

/// The document with these entries, appended as an update of its information and its catalogue; a
/// document that isn't built as Qt's writer does comes back as it is.
std::string Described(std::string pdf, const PdfDescription& description);

}  // namespace korvane
