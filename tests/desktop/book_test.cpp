// SPDX-License-Identifier: GPL-3.0-or-later
// What the help book works out and prints: each number by hand is its own arithmetic and the
// program's, each command prints what its page shows, each formula has its picture.
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTextDocument>

#include "core/calculation.h"
#include "core/project_file.h"
#include "front/desktop/help_book.h"
#include "places.h"
#include "tests/support/arithmetic.h"
#include "tests/support/source_library.h"

namespace korvane {
namespace {

const QString kSource = QStringLiteral(KORVANE_SOURCE_DIR);
const QString kFolder = kSource + QStringLiteral("/docs/help/");

QString Page(const QString& name) {
  QFile file(kFolder + name);
  EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name.toStdString();
  return QString::fromUtf8(file.readAll());
}
QStringList AllPages() {
  return QDir(kFolder).entryList({QStringLiteral("*.html")}, QDir::Files);
}
QList<QRegularExpressionMatch> All(const QString& text, const char* pattern) {
  const QRegularExpression expression(QString::fromUtf8(pattern),
                                      QRegularExpression::DotMatchesEverythingOption);
  QList<QRegularExpressionMatch> found;
  for (auto it = expression.globalMatch(text); it.hasNext();) found << it.next();
  return found;
}
/// Text as a reader sees it; raised numbers with figures of their own.
QString Shown(QString html) {
  static const QRegularExpression raised(QStringLiteral("<sup>([0-9]+)</sup>"));
  static const QString figures = QString::fromUtf8("⁰¹²³⁴⁵⁶⁷⁸⁹");
  for (auto match = raised.match(html); match.hasMatch(); match = raised.match(html)) {
    QString up;
    for (const QChar c : match.captured(1)) up += figures[c.digitValue()];
    html.replace(match.capturedStart(), match.capturedLength(), up);
  }
  QTextDocument document;
  document.setHtml(html);
  return document.toPlainText().simplified();
}
/// The text of a <pre> block, line by line.
QStringList LinesOf(QString block) {
  static const QRegularExpression tag(QStringLiteral("<[^>]*>"));
  block.remove(tag);
  block.replace(QLatin1String("&lt;"), QLatin1String("<"));
  block.replace(QLatin1String("&gt;"), QLatin1String(">"));
  block.replace(QLatin1String("&amp;"), QLatin1String("&"));
  QStringList lines = block.split(QLatin1Char('\n'));
  while (!lines.isEmpty() && lines.last().trimmed().isEmpty()) lines.removeLast();
  while (!lines.isEmpty() && lines.first().trimmed().isEmpty()) lines.removeFirst();
  return lines;
}

struct Printout {
  int status = -1;
  QString out;
};
Printout Cli(const QStringList& arguments, const QString& folder) {
  QProcess cli;
  cli.setWorkingDirectory(folder);
  cli.start(QStringLiteral(KORVANE_CLI), arguments);
  EXPECT_TRUE(cli.waitForFinished());
  return {cli.exitCode(), QString::fromUtf8(cli.readAllStandardOutput())};
}

/// Each line that is shown stands in what is printed, in the same order.
void ExpectPrinted(const QStringList& shown, const QString& printed, const QString& where) {
  const QStringList lines = printed.split(QLatin1Char('\n'));
  qsizetype at = 0;
  for (const QString& line : shown) {
    const QString wanted = line.trimmed();
    if (wanted.isEmpty() || wanted == QLatin1String("...")) continue;
    while (at < lines.size() && lines[at].trimmed() != wanted) ++at;
    ASSERT_LT(at, lines.size()) << where.toStdString() << ": " << wanted.toStdString();
    ++at;
  }
}

// --- Worked by hand -----------------------------------------------------------------------------

/// A number of the program's results, "buckling.Xy" or "analysis.MyStation.25".
double ResultOf(const QJsonObject& results, const QString& path) {
  QJsonValue value = results;
  for (const QString& part : path.split(QLatin1Char('.'))) {
    value = value.isArray() ? value.toArray().at(part.toInt()) : value.toObject().value(part);
  }
  EXPECT_TRUE(value.isDouble()) << path.toStdString();
  return value.toDouble();
}
/// Half a unit in the last place of a number as it is shown.
double HalfUnit(const QString& number) {
  const auto point = number.indexOf(QLatin1Char('.'));
  return 0.5 * (point < 0 ? 1 : std::pow(10.0, -static_cast<double>(number.size() - point - 1)));
}

/// "a = b = 1.0 / 3 = 0.33 kN": the arithmetic before the last sign of equality gives the number
/// behind it, to its last place.
void ExpectOwnArithmetic(const QString& line, const QString& number, const QString& work,
                         const QString& where) {
  try {
    const Worked worked = Arithmetic::Evaluate(work.toStdString());
    EXPECT_NEAR(worked.value, number.toDouble(), worked.slack + HalfUnit(number) * 1.000001)
        << where.toStdString() << ": " << line.toStdString();
  } catch (const std::invalid_argument& fault) {
    ADD_FAILURE() << where.toStdString() << ": " << line.toStdString() << "\n" << fault.what();
  }
}

/// A line or a part of a sentence that is evaluated.
constexpr const char* kWorked =
    "<(p|span)\\s+class=\"(?:calc|worked)\"(\\s+data-program=\"[^\"]*\")?"
    "(\\s+data-times=\"[^\"]*\")?>(.*?)</\\1>";

QStringList WorkedPages() {
  QStringList pages;
  for (const QString& page : AllPages()) {
    if (!All(Page(page), kWorked).isEmpty()) pages << page;
  }
  return pages;
}
QString ProjectOf(const QString& html) {
  return All(html, "data-project=\"([^\"]*)\"").value(0).captured(1);
}

TEST(HelpBookTest, WorkedNumbersAreTheirArithmeticAndTheProgramsOwn) {
  int lines = 0, held = 0;
  for (const QString& page : WorkedPages()) {
    const QString html = Page(page);
    QJsonObject results;  // stays empty for a page that works without a project
    if (!ProjectOf(html).isEmpty()) {
      const Printout run =
          Cli({QStringLiteral("design"), QStringLiteral("--json"), ProjectOf(html)},
              kSource + QStringLiteral("/examples"));
      results = QJsonDocument::fromJson(run.out.toUtf8()).object();
      ASSERT_FALSE(results.isEmpty()) << page.toStdString();
    }
    for (const auto& match : All(html, kWorked)) {
      const QString line = Shown(match.captured(4));
      const QStringList parts = line.split(QLatin1Char('='));
      static const QRegularExpression leading(QString::fromUtf8("^\\s*([-−]?[0-9.]*[0-9])"));
      QString number = leading.match(parts.last()).captured(1);
      number.replace(QChar(0x2212), QLatin1Char('-'));
      ASSERT_FALSE(number.isEmpty()) << page.toStdString() << ": " << line.toStdString();
      ++lines;
      // A line without arithmetic gives a value that the program has as well.
      const QString path = match.captured(2).section(QLatin1Char('"'), 1, 1);
      if (parts.size() >= 3 || (parts.size() == 2 && path.isEmpty()))
        ExpectOwnArithmetic(line, number, parts[parts.size() - 2], page);
      EXPECT_TRUE(parts.size() >= 2 || !path.isEmpty()) << line.toStdString();
      if (path.isEmpty()) continue;
      ++held;
      const QString times = match.captured(3).section(QLatin1Char('"'), 1, 1);
      const double scale = times.isEmpty() ? 1 : times.toDouble();
      EXPECT_NEAR(ResultOf(results, path) * scale, number.toDouble(), HalfUnit(number) * 1.000001)
          << page.toStdString() << ": " << line.toStdString();
    }
  }
  EXPECT_GE(lines, 150);
  EXPECT_GE(held, 90);
}

/// On the pages worked by hand no number with a unit or a decimal stands outside of what is
/// evaluated: the rest are names, counts, limits of a rule and figures that a line takes up.
TEST(HelpBookTest, WorkedPagesLeaveNoNumberUntested) {
  static const QRegularExpression tested(
      QString::fromUtf8(
          "<(p|span)\\s+class=\"(calc|worked|given|rule)\".*?</\\1>|<pre.*?</pre>|"
          "<math.*?</math>|<code>.*?</code>|<h[1-3]>.*?</h[1-3]>|"
          "<p class=\"caption\">.*?</p>|<(title|style)>.*?</\\3>|(HEA|IPE|HSQ|S) ?[0-9]+|"
          "<[^>]*>"),
      QRegularExpression::DotMatchesEverythingOption);
  static const QRegularExpression number(
      QString::fromUtf8("[0-9]+\\.[0-9]+|[0-9]{3,}|[0-9]+\\s*(kN|m|mm|MPa|kg|%)\\b"));
  for (const char* page : {"hand-column.html", "hand-beam.html", "hand-hsq.html"}) {
    const QString html = Page(QString::fromUtf8(page));
    QString rest = html.mid(html.indexOf(QLatin1String("<h2>1 ")));
    rest.replace(tested, QStringLiteral(" "));
    const auto left = number.match(rest);
    EXPECT_FALSE(left.hasMatch()) << page << ": " << left.captured().toStdString() << " in "
                                  << rest.mid(left.capturedStart() - 60, 120).toStdString();
    // A given figure is one that a line of the page works with.
    QString lines;
    for (const auto& line : All(html, kWorked))
      lines += Shown(line.captured(4)) + QLatin1Char('\n');
    for (const auto& given : All(html, "<span class=\"given\">([0-9.]+)</span>")) {
      const QRegularExpression whole(QStringLiteral("(?<![0-9.])") +
                                     QRegularExpression::escape(given.captured(1)) +
                                     QStringLiteral("(?![0-9.])"));
      EXPECT_TRUE(lines.contains(whole)) << page << ": " << given.captured(1).toStdString();
    }
  }
}

TEST(HelpBookTest, PrintedLinesOfWorkedPagesAreTheProgramsOwn) {
  int blocks = 0;
  QTemporaryDir folder;
  for (const QString& page : WorkedPages()) {
    const QString html = Page(page);
    if (!html.contains(QLatin1String("<pre class=\"prints\">"))) continue;
    const QString project = kSource + QStringLiteral("/examples/") + ProjectOf(html);
    const Printout run = Cli({QStringLiteral("design"), project}, folder.path());
    for (const auto& block : All(html, "<pre class=\"prints\">(.*?)</pre>")) {
      ++blocks;
      ExpectPrinted(LinesOf(block.captured(1)), run.out, page);
    }
  }
  EXPECT_GE(blocks, 11);
}

// --- Commands -----------------------------------------------------------------------------------

/// The files that the commands of the book name: examples under names of their own.
void CopyExamples(const QString& folder) {
  const QDir examples(kSource + QStringLiteral("/examples"));
  const auto copy = [&](const QString& from, const QString& to) {
    ASSERT_TRUE(QFile::copy(examples.filePath(from), folder + QLatin1Char('/') + to));
  };
  QDir(folder).mkdir(QStringLiteral("projects"));
  for (const QString& file :
       examples.entryList({QStringLiteral("*.kvn"), QStringLiteral("*.csv")}, QDir::Files)) {
    copy(file, file);
    copy(file, QStringLiteral("projects/") + file);
  }
  copy(QStringLiteral("column-hea200.kvn"), QStringLiteral("column.kvn"));
  copy(QStringLiteral("beam-ipe300-floor.kvn"), QStringLiteral("beam.kvn"));
}

/// A line of a page that begins with korvane-cli is a command; what stands below it up to the
/// next one is what it prints.
TEST(HelpBookTest, EveryCommandPrintsWhatItsPageShows) {
  QTemporaryDir folder;
  ASSERT_NO_FATAL_FAILURE(CopyExamples(folder.path()));
  int commands = 0, shown = 0;
  for (const QString& page : AllPages()) {
    for (const auto& block : All(Page(page), "<pre[^>]*>(.*?)</pre>")) {
      const QStringList lines = LinesOf(block.captured(1));
      for (qsizetype i = 0; i < lines.size();) {
        if (!lines[i].startsWith(QLatin1String("korvane-cli "))) {
          ++i;
          continue;
        }
        ++commands;
        const QString command = lines[i];
        QStringList output;
        for (++i; i < lines.size() && !lines[i].startsWith(QLatin1String("korvane-cli ")); ++i) {
          if (!lines[i].trimmed().isEmpty()) output << lines[i];
        }
        const QStringList words = command.split(QLatin1Char(' '), Qt::SkipEmptyParts);
        const Printout run = Cli(words.mid(1), folder.path());
        EXPECT_TRUE(run.status == 0 || run.status == 1)
            << page.toStdString() << ": " << command.toStdString() << " ends with " << run.status;
        if (!output.isEmpty()) ++shown;
        ExpectPrinted(output, run.out, page + QLatin1String(": ") + command);
      }
    }
  }
  EXPECT_GE(commands, 10);
  EXPECT_GE(shown, 4);
}

TEST(HelpBookTest, EveryOptionOfACommandIsTold) {
  const QString page = Page(QStringLiteral("console.html"));
  const QString told = page + Page(QStringLiteral("tables.html"));
  int options = 0;
  for (const auto& command : All(page, "<h2><a name=\"([a-z]+)\"></a>[a-z]+</h2>")) {
    const QString name = command.captured(1);
    const Printout help = Cli({name, QStringLiteral("--help")}, QDir::tempPath());
    for (const auto& option : All(help.out, "--([a-z]+(?:-[a-z]+)*)")) {
      ++options;
      EXPECT_TRUE(told.contains(option.captured()))
          << name.toStdString() << ": " << option.captured().toStdString();
    }
  }
  EXPECT_GE(options, 25);
}

/// A script is followed by what it prints.
TEST(HelpBookTest, EveryScriptPrintsWhatItsPageShows) {
  int scripts = 0;
  for (const QString& page : AllPages()) {
    for (const auto& pair :
         All(Page(page), "<pre class=\"script\">(.*?)</pre>.*?<pre>(.*?)</pre>")) {
      ++scripts;
      QTemporaryDir folder;
      ASSERT_NO_FATAL_FAILURE(CopyExamples(folder.path()));
      QFile script(folder.filePath(QStringLiteral("script.txt")));
      ASSERT_TRUE(script.open(QIODevice::WriteOnly));
      script.write(LinesOf(pair.captured(1)).join(QLatin1Char('\n')).toUtf8() + '\n');
      script.close();
      const Printout run = Cli({QStringLiteral("session"), QStringLiteral("--decimal"),
                                QStringLiteral("point"), QStringLiteral("script.txt")},
                               folder.path());
      EXPECT_EQ(run.status, 0) << page.toStdString();
      EXPECT_EQ(run.out.trimmed().toStdString(),
                LinesOf(pair.captured(2)).join(QLatin1Char('\n')).trimmed().toStdString())
          << page.toStdString();
    }
  }
  EXPECT_GE(scripts, 2);
}

// --- What runs for which family -----------------------------------------------------------------

/// A member of the family with one kind of load alone.
Design Loaded(const std::shared_ptr<const Library>& library, const QString& file,
              void (*load)(ProjectState&)) {
  Design design(library);
  StartDesign(design);
  EXPECT_EQ(OpenProject(file.toStdString(), design.st), FileResult::Ok);
  ProjectState& st = design.st;
  st.AnalysisMode = 1;
  st.SupportType = 0;
  st.SelfWeight = 0;
  st.NP = st.NV1 = st.NV2 = 0;
  st.q1 = st.q2 = st.q3 = st.q4 = 0;
  st.qt1_1 = st.qt1_2 = st.qt2_1 = st.qt2_2 = st.qt3_1 = st.qt3_2 = 0;
  for (std::size_t i = 1; i <= 8; ++i) st.pm[i] = 0;
  st.LateralTorsionalBuckling = 1;
  st.LtbSegments = 0;
  st.bly = st.blz = 1;
  st.BucklingCaseY = st.BucklingCaseZ = 2;
  load(st);
  Calculate(design);
  return design;
}

TEST(HelpBookTest, TableOfFamiliesTellsWhatRuns) {
  const auto& library = SourceLibrary();
  const QString html = Page(QStringLiteral("validity.html"));
  int rows = 0;
  for (const auto& row :
       All(html, "<tr><td>(\\d+)</td><td><a [^>]*>([^<]*)</a></td>((?:<td>x?</td>){7})</tr>")) {
    ++rows;
    const int code = row.captured(1).toInt();
    const QString file =
        kSource +
        QStringLiteral("/tests/design/projects/f%1.kvn").arg(code, 3, 10, QLatin1Char('0'));
    const auto axial = [](ProjectState& st) { st.NP = 10; };
    const auto down = [](ProjectState& st) { st.q1 = 1, st.q1_yz = 1; };
    const auto up = [](ProjectState& st) { st.q1 = -1, st.q1_yz = 1; };
    const auto across = [](ProjectState& st) { st.q1 = 1, st.q1_yz = 0; };
    const Design n = Loaded(library, file, axial);
    const Design z = Loaded(library, file, down);
    const Design y = Loaded(library, file, across);
    const auto shown = [](const CheckLine& line) { return !line.formula.empty(); };
    const CheckResults& c = n.checks;
    const bool runs[] = {c.IRsection > 0,
                         z.checks.IRsection > 0,
                         y.checks.IRsection > 0,
                         shown(z.checks.lineVz),
                         shown(y.checks.lineVy),
                         z.checks.IRlateral > 0 || Loaded(library, file, up).checks.IRlateral > 0,
                         c.IRny > 0 || c.IRnz > 0 || c.IRcombinedY > 0 || c.IRcombinedZ > 0};
    QString told;
    for (const bool run : runs)
      told += run ? QStringLiteral("<td>x</td>") : QStringLiteral("<td></td>");
    EXPECT_EQ(row.captured(3).toStdString(), told.toStdString()) << code;
  }
  EXPECT_EQ(rows, 32);
}

// --- Messages -----------------------------------------------------------------------------------

/// Messages as they stand in the sources of rules and forms: what a person is told in a box.
QStringList MessagesOfTheProgram() {
  QStringList all;
  for (const char* folder : {"/front", "/front/forms", "/core", "/optimiser"}) {
    const QDir dir(kSource + QString::fromLatin1(folder));
    for (const QString& name :
         dir.entryList({QStringLiteral("*.cpp"), QStringLiteral("*.h")}, QDir::Files)) {
      QFile file(dir.filePath(name));
      EXPECT_TRUE(file.open(QIODevice::ReadOnly));
      const QString text = QString::fromUtf8(file.readAll());
      for (const char* pattern :
           {"Message\\(\"([^\"]+)\"", "messages\\.emplace_back\\(\"([^\"]+)\"",
            "kMismatch = \"([^\"]+)\"", "kOnlyDatabaseProfiles = \"([^\"]+)\"",
            "(?:Between|AtLeast|Above)\\([^\"()]*\"([^\"]+)\"",
            "(?:\"onote\"|\"slsfactor\"|\"obcauto\"|\"oweightnote\"), \"([^\"]+)\""}) {
        for (const auto& match : All(text, pattern)) all << match.captured(1).trimmed();
      }
    }
  }
  all.removeDuplicates();
  return all;
}

TEST(HelpBookTest, EveryMessageOfTheProgramIsTold) {
  QString book;
  for (const QString& page : AllPages()) book += Shown(Page(page)) + QLatin1Char(' ');
  const QStringList messages = MessagesOfTheProgram();
  EXPECT_GE(messages.size(), 35);
  for (QString message : messages) {
    message = message.simplified();
    if (message.endsWith(QLatin1String(" -"))) message.chop(2);
    EXPECT_TRUE(book.contains(message)) << message.toStdString();
  }
}

/// What the page of messages quotes is what the program says.
TEST(HelpBookTest, EveryMessageOfThePageIsTheProgramsOwn) {
  QString sources;
  for (const char* folder : {"/front", "/front/forms", "/front/desktop", "/front/console", "/core",
                             "/analysis", "/sections", "/optimiser"}) {
    const QDir dir(kSource + QString::fromLatin1(folder));
    for (const QString& name :
         dir.entryList({QStringLiteral("*.cpp"), QStringLiteral("*.h")}, QDir::Files)) {
      QFile file(dir.filePath(name));
      EXPECT_TRUE(file.open(QIODevice::ReadOnly));
      sources += QString::fromUtf8(file.readAll());
    }
  }
  sources = sources.simplified();
  const QString page = Page(QStringLiteral("messages.html"));
  const QString told = page.left(page.indexOf(QLatin1String("No message, but odd")));
  int messages = 0;
  for (const auto& row : All(told, "<tr><td>(.*?)</td>")) {
    ++messages;
    // Parts between what the program fills in.
    static const QRegularExpression filled(QStringLiteral("\\.\\.\\.|1\\.00"));
    for (const QString& part : Shown(row.captured(1)).split(filled, Qt::SkipEmptyParts)) {
      const QString words = part.simplified();
      if (words.size() < 3) continue;
      bool found = sources.contains(words);
      if (!found) {
        QString loose = sources;
        found = loose.remove(QStringLiteral("\" \"")).contains(words);
      }
      EXPECT_TRUE(found) << words.toStdString();
    }
  }
  EXPECT_GE(messages, 18);
}

// --- Formulas -----------------------------------------------------------------------------------

TEST(HelpBookTest, EveryFormulaHasItsPictureAndWords) {
  QStringList wanted;
  for (const QString& page : AllPages()) {
    const QString html = Page(page);
    for (const auto& math : All(html, "<math\\b.*?</math>")) {
      EXPECT_TRUE(math.captured().contains(
          QRegularExpression(QStringLiteral("^<math display=\"block\" alttext=\"[^\"]{3,}\">"))))
          << page.toStdString() << ": " << math.captured().toStdString();
      wanted << FormulaPicture(math.captured());
      EXPECT_TRUE(QFile::exists(kFolder + wanted.last()))
          << page.toStdString() << ": make it with scripts/help_formulas";
    }
    EXPECT_FALSE(WithFormulaPictures(html).contains(QLatin1String("<math")));
  }
  wanted.removeDuplicates();
  EXPECT_GE(wanted.size(), 40);
  const QStringList there = QDir(kFolder + QStringLiteral("formulas")).entryList(QDir::Files);
  for (const QString& file : there) {
    EXPECT_TRUE(wanted.contains(QStringLiteral("formulas/") + file)) << file.toStdString();
  }
}

TEST(HelpBookTest, FormulaIsKnownByItsTextNotByItsBlanks) {
  const QString a = QStringLiteral("<math display=\"block\" alttext=\"a = b\"><mi>a</mi></math>");
  QString b = a;
  b.replace(QLatin1String("><"), QLatin1String(">\n <"));
  EXPECT_EQ(FormulaPicture(a), FormulaPicture(b));
  EXPECT_NE(FormulaPicture(a),
            FormulaPicture(QString(a).replace(QLatin1String("<mi>a"), QLatin1String("<mi>c"))));
}

// --- Arithmetic of the pages
// ----------------------------------------------------------------------

TEST(ArithmeticTest, EvaluatesAsByHand) {
  EXPECT_DOUBLE_EQ(Arithmetic::Evaluate("2 + 3 · 4").value, 14);
  EXPECT_DOUBLE_EQ(Arithmetic::Evaluate("(2 + 3)² / 10").value, 2.5);
  EXPECT_DOUBLE_EQ(Arithmetic::Evaluate("√(3² + 4²) − |−1|").value, 4);
  EXPECT_DOUBLE_EQ(Arithmetic::Evaluate("2 · 10³").value, 2000);
  EXPECT_NEAR(Arithmetic::Evaluate("π / 2").value, 1.5707963, 1e-7);
  EXPECT_THROW(Arithmetic::Evaluate("2 +"), std::invalid_argument);
  EXPECT_THROW(Arithmetic::Evaluate("2 kN"), std::invalid_argument);
}

TEST(ArithmeticTest, SlackIsThatOfTheRoundedNumbers) {
  EXPECT_NEAR(Arithmetic::Evaluate("0.5 + 3").slack, 0.05, 1e-12);
  EXPECT_NEAR(Arithmetic::Evaluate("10 · 0.25").slack, 0.05, 1e-12);
  EXPECT_NEAR(Arithmetic::Evaluate("355 · 2").slack, 1.0, 1e-12);
  EXPECT_NEAR(Arithmetic::Evaluate("7 · 8").slack, 0, 1e-12);
}

}  // namespace
}  // namespace korvane
