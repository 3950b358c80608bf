// SPDX-License-Identifier: GPL-3.0-or-later
#include "front/painter/pdf_description.h"

#include <QString>
#include <cstdio>
#include <cstdlib>
#include <optional>

namespace korvane {

namespace {

constexpr auto kNone = std::string::npos;

/// A text string: UTF-16 with its mark, as hexadecimal digits.
std::string Hexadecimal(const std::string& text) {
  std::string out = "<FEFF";
  for (const QChar c : QString::fromStdString(text)) {
    char digits[5];
    std::snprintf(digits, sizeof digits, "%04X", c.unicode());
    out += digits;
  }
  return out + ">";
}

/// The number behind a name of the trailer.
std::optional<long> NumberOf(const std::string& trailer, const char* name) {
  const auto at = trailer.find(name);
  if (at == kNone) return std::nullopt;
  return std::strtol(trailer.c_str() + at + std::string(name).size(), nullptr, 10);
}

/// The dictionary of an object from behind its opening on, up to "endobj".
std::optional<std::string> DictionaryOf(const std::string& pdf, long object) {
  const std::string head = "\n" + std::to_string(object) + " 0 obj\n<<";
  const auto begin = pdf.find(head);
  if (begin == kNone) return std::nullopt;
  const auto first = begin + head.size();
  const auto end = pdf.find("\nendobj", first);
  if (end == kNone) return std::nullopt;
  return pdf.substr(first, end - first);
}

std::string Row(std::size_t offset) {
  char row[24];
  std::snprintf(row, sizeof row, "%010zu 00000 n \n", offset);
  return row;
}

}  // namespace

std::string Described(std::string pdf, const PdfDescription& description) {
  const auto trailerAt = pdf.rfind("trailer");
  if (trailerAt == kNone) return pdf;
  const std::string trailer = pdf.substr(trailerAt);
  const auto size = NumberOf(trailer, "/Size ");
  const auto info = NumberOf(trailer, "/Info ");
  const auto root = NumberOf(trailer, "/Root ");
  const auto table = NumberOf(trailer, "startxref\n");
  if (!size || !info || !root || !table) return pdf;
  const auto informed = DictionaryOf(pdf, *info);
  const auto catalogue = DictionaryOf(pdf, *root);
  if (!informed || !catalogue) return pdf;

  if (pdf.back() != '\n') pdf += '\n';
  const std::size_t infoAt = pdf.size();
  pdf += std::to_string(*info) + " 0 obj\n<<\n/Author " + Hexadecimal(description.author) +
         "\n/Subject " + Hexadecimal(description.subject) + *informed + "\nendobj\n";
  const std::size_t rootAt = pdf.size();
  pdf += std::to_string(*root) + " 0 obj\n<<\n/Lang (" + description.language +
         ")\n/ViewerPreferences <</DisplayDocTitle true>>" + *catalogue + "\nendobj\n";
  const std::size_t newTable = pdf.size();
  pdf += "xref\n" + std::to_string(*info) + " 1\n" + Row(infoAt) + std::to_string(*root) + " 1\n" +
         Row(rootAt) + "trailer\n<<\n/Size " + std::to_string(*size) + "\n/Info " +
         std::to_string(*info) + " 0 R\n/Root " + std::to_string(*root) + " 0 R\n/Prev " +
         std::to_string(*table) + "\n>>\nstartxref\n" + std::to_string(newTable) + "\n%%EOF\n";
  return pdf;
}

}  // namespace korvane
