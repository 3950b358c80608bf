// SPDX-License-Identifier: GPL-3.0-or-later
// The surface that writes SVG: what stands in the document, and that any text keeps it well-formed.
#include "presentation/svg_target.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>
#include <vector>

#include "presentation/text_metrics.h"

namespace korvane {
namespace {

constexpr double kWidth = 200;
constexpr double kHeight = 100;

template <class Draw>
std::string DocumentOf(Draw draw, std::string_view title = "title") {
  SvgTarget target(kWidth, kHeight, title, Palette::Light());
  draw(target);
  return target.Document();
}

bool Holds(const std::string& document, const std::string& part) {
  return document.find(part) != std::string::npos;
}

/// One character of XML from the bytes at a place; 0 where no character of XML 1.0 stands there.
int CharacterLength(std::string_view bytes) {
  const auto at = [&](std::size_t i) {
    return i < bytes.size() ? static_cast<unsigned char>(bytes[i]) : 0U;
  };
  const unsigned lead = at(0);
  if (lead < 0x80) return lead >= 0x20 || lead == '\t' || lead == '\n' || lead == '\r' ? 1 : 0;
  const int length = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : lead >= 0xC2 ? 2 : 0;
  unsigned value = lead & (0xFFU >> (length + 1));
  for (int i = 1; i < length; ++i) {
    if ((at(static_cast<std::size_t>(i)) & 0xC0U) != 0x80U) return 0;
    value = (value << 6U) | (at(static_cast<std::size_t>(i)) & 0x3FU);
  }
  constexpr unsigned least[] = {0, 0, 0x80, 0x800, 0x10000};
  if (length == 0 || value < least[length] || value > 0x10FFFF) return 0;
  if ((value >= 0xD800 && value < 0xE000) || value == 0xFFFE || value == 0xFFFF) return 0;
  return length;
}

/// Whether the document is well-formed as far as ours go: characters of XML alone, elements closed
/// in their order, attributes quoted, no markup in values, known entities.
class Checker {
public:
  explicit Checker(std::string_view document) : rest_(document) {}
  bool WellFormed() {
    if (!AllCharacters() || !Take("<?xml")) return false;
    rest_.remove_prefix(rest_.find("?>") + 2);
    while (!rest_.empty()) {
      if (rest_.front() == '<' ? !Tag() : !Text()) return false;
    }
    return open_.empty() && elements_ > 0;
  }

private:
  bool AllCharacters() const {
    for (std::string_view left = rest_; !left.empty();) {
      const int length = CharacterLength(left);
      if (length == 0) return false;
      left.remove_prefix(static_cast<std::size_t>(length));
    }
    return true;
  }
  bool Take(std::string_view word) {
    if (!rest_.starts_with(word)) return false;
    rest_.remove_prefix(word.size());
    return true;
  }
  bool Entities(std::string_view text) {
    for (std::size_t i = text.find('&'); i != std::string_view::npos; i = text.find('&', i + 1)) {
      bool known = false;
      for (const char* name : {"&amp;", "&lt;", "&gt;", "&quot;", "&#39;"})
        known = known || text.substr(i).starts_with(name);
      if (!known) return false;
    }
    return true;
  }
  bool Text() {
    const std::string_view text = rest_.substr(0, rest_.find('<'));
    rest_.remove_prefix(text.size());
    return Entities(text) && (!open_.empty() || text.find_first_not_of(" \n") == text.npos);
  }
  std::string Name() {
    const std::size_t end = rest_.find_first_of(" =/>");
    const std::string name(rest_.substr(0, end));
    rest_.remove_prefix(std::min(end, rest_.size()));
    return name;
  }
  bool Tag() {
    if (Take("</")) {
      if (open_.empty() || Name() != open_.back()) return false;
      open_.pop_back();
      return Take(">");
    }
    Take("<");
    open_.push_back(Name());
    ++elements_;
    while (Take(" ")) {
      if (Name().empty() || !Take("=\"")) return false;
      const std::string_view value = rest_.substr(0, rest_.find('"'));
      if (value.find('<') != value.npos || !Entities(value)) return false;
      rest_.remove_prefix(value.size());
      if (!Take("\"")) return false;
    }
    if (Take("/")) open_.pop_back();
    return Take(">");
  }

  std::string_view rest_;
  std::vector<std::string> open_;
  int elements_ = 0;
};

TEST(SvgTarget, IsAPageWithItsSizeTitleAndPaper) {
  const std::string document = DocumentOf([](DrawingTarget&) {}, "Beam <1>");
  EXPECT_TRUE(Checker(document).WellFormed());
  EXPECT_TRUE(Holds(document, "width=\"200pt\" height=\"100pt\" viewBox=\"0 0 200 100\""));
  EXPECT_TRUE(Holds(document, "<title>Beam &lt;1&gt;</title>"));
  EXPECT_TRUE(Holds(document, "<rect width=\"200\" height=\"100\" fill=\"#ffffff\"/>"));
}

TEST(SvgTarget, WritesTextOnItsBaseLineWithTheWidthOfItsTable) {
  const std::string document = DocumentOf([](DrawingTarget& target) {
    target.FontSize = 10;
    target.FontBold = true;
    target.FontUnderline = true;
    target.CurrentX = 20;
    target.CurrentY = 30;
    target.Print("IR < 1 & \"ok\"");
  });
  // The base line: 30 + 0.905 * 10.
  EXPECT_TRUE(Holds(document, "x=\"20\" y=\"39.05\"")) << document;
  EXPECT_TRUE(Holds(document, ">IR &lt; 1 &amp; &quot;ok&quot;</text>"));
  EXPECT_TRUE(Holds(document, "font-size=\"10\" font-weight=\"bold\""));
  EXPECT_TRUE(Holds(document, "text-decoration=\"underline\""));
  EXPECT_TRUE(Holds(document, "'Liberation Sans',Arial"));
  // Bold, in thousandths: I 278, R 722, 5 blanks 278... counted by the table itself.
  const double width = 10 * ArialWidth("IR < 1 & \"ok\"", true);
  const std::size_t at = document.find("textLength=\"");
  ASSERT_NE(at, std::string::npos);
  EXPECT_NEAR(std::stod(document.substr(at + 12)), width, 0.0005);
}

TEST(SvgTarget, DrawsLinesAreasAndDashes) {
  const std::string document = DocumentOf([](DrawingTarget& target) {
    target.LineWidth = 2;
    target.LineDash = Dash::DashDot;
    target.Line({0, 0}, {10.5, 20.1234});
    target.LineDash = Dash::Solid;
    target.FillOpacity = 0.25;
    const std::vector<Point> square{{0, 0}, {5, 0}, {5, 5}, {0, 5}};
    target.Polygon(square, Paint::Filled);
  });
  EXPECT_TRUE(Holds(document, "<path d=\"M0 0L10.5 20.123\" stroke=")) << document;
  EXPECT_TRUE(Holds(document, "stroke-width=\"2\" stroke-dasharray=\"8 4 2 4 \"/>"));
  EXPECT_TRUE(Holds(document, "<path d=\"M0 0L5 0L5 5L0 5Z\" fill=")) << document;
  EXPECT_TRUE(Holds(document, "fill-opacity=\"0.25\"/>"));
}

TEST(SvgTarget, DrawsArcsTheWayTheyRun) {
  // A quarter from the right upwards: counter-clockwise, from (60, 50) to (50, 40).
  EXPECT_TRUE(Holds(DocumentOf([](DrawingTarget& t) {
                      t.Arc({50, 50}, 10, 0, 90);
                    }),
                    "d=\"M60 50A10 10 0 0 0 50 40\""));
  // Three quarters the other way: the large part, clockwise, from the right round to the top.
  EXPECT_TRUE(Holds(DocumentOf([](DrawingTarget& t) {
                      t.Arc({50, 50}, 10, 0, -270);
                    }),
                    "d=\"M60 50A10 10 0 1 1 50 40\""));
  EXPECT_TRUE(Holds(DocumentOf([](DrawingTarget& t) {
                      t.Arc({50, 50}, 10, 0, 360);
                    }),
                    "<ellipse cx=\"50\" cy=\"50\" rx=\"10\" ry=\"10\""));
}

TEST(SvgTarget, ClearBeginsAnew) {
  const std::string document = DocumentOf([](DrawingTarget& target) {
    target.Print("gone");
    target.Clear();
    target.Print("here");
  });
  EXPECT_FALSE(Holds(document, "gone"));
  EXPECT_TRUE(Holds(document, ">here</text>"));
}

TEST(SvgTarget, WritesNoNumberThatIsNone) {
  const std::string document = DocumentOf([](DrawingTarget& target) {
    target.Line({std::nan(""), HUGE_VAL}, {-1E300, -0.0001});
  });
  EXPECT_TRUE(Holds(document, "d=\"M0 0L0 0\"")) << document;
}

TEST(XmlText, EscapesMarkupAndReplacesWhatXmlCantHold) {
  EXPECT_EQ(XmlText("a<b>&\"'"), "a&lt;b&gt;&amp;&quot;&#39;");
  EXPECT_EQ(XmlText("k\xC3\xB8"), "k\xC3\xB8");
  EXPECT_EQ(XmlText("k\xF8"), "k\xC3\xB8");
  EXPECT_EQ(XmlText(std::string_view("a\0b\x1B", 4)),
            "a\xEF\xBF\xBD"
            "b\xEF\xBF\xBD");
  EXPECT_EQ(XmlText("\xEF\xBF\xBE"), "\xEF\xBF\xBD");
}

TEST(SvgTarget, ThousandNamesOfAnyBytesStayWellFormed) {
  std::mt19937 random(20240607);
  std::uniform_int_distribution<int> byte(0, 255);
  std::uniform_int_distribution<int> length(0, 40);
  for (int i = 0; i < 1000; ++i) {
    std::string name;
    for (int n = length(random); n > 0; --n) name += static_cast<char>(byte(random));
    const std::string document = DocumentOf([&](DrawingTarget& t) { t.Print(name); }, name);
    ASSERT_TRUE(Checker(document).WellFormed()) << i << "\n" << document;
  }
  // The checker refuses what would break a document.
  for (const char* broken : {"<?xml?><a>&x;</a>", "<?xml?><a>", "<?xml?><a></b>", "<?xml?>text",
                             "<?xml?><a b=\"<\"/>", "<?xml?><a>\x01</a>", "<?xml?><a>\xF8</a>"}) {
    EXPECT_FALSE(Checker(broken).WellFormed()) << broken;
  }
}

}  // namespace
}  // namespace korvane
