// SPDX-License-Identifier: GPL-3.0-or-later
// The help book: its pages are whole and tell about every form, family and command, and the
// viewer opens, finds and goes back.
#include <QAction>
#include <QApplication>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QProcess>
#include <QRegularExpression>
#include <QTextBrowser>
#include <QTreeWidget>

#include "front/desktop/desktop_platform.h"
#include "front/desktop/help_desk.h"
#include "front/desktop/help_viewer.h"
#include "places.h"
#include "sections/profile_table.h"
#include "tests/desktop/desktop_fixture.h"
#include "tests/support/source_library.h"
#include "tools/help_tables.h"

namespace korvane {
namespace {

const QString kFolder = QStringLiteral(KORVANE_SOURCE_DIR "/docs/help");

QString Read(const QString& path) {
  QFile file(path);
  EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
  return QString::fromUtf8(file.readAll());
}
QString Page(const QString& name) {
  return Read(kFolder + QLatin1Char('/') + name);
}
QStringList AllPages() {
  return QDir(kFolder).entryList({QStringLiteral("*.html")}, QDir::Files);
}
QStringList Captured(const QString& text, const char* pattern) {
  QStringList all;
  auto it = QRegularExpression(QString::fromUtf8(pattern)).globalMatch(text);
  while (it.hasNext()) all << it.next().captured(1);
  return all;
}

// --- The book -----------------------------------------------------------------------------------

TEST(HelpBookTest, EveryLinkAndImageResolves) {
  int links = 0;
  for (const QString& page : AllPages()) {
    for (const QString& link : Captured(Page(page), "(?:href|src)=\"([^\"]+)\"")) {
      ++links;
      const QString file = link.section(QLatin1Char('#'), 0, 0);
      const QString target = file.isEmpty() ? page : file;
      ASSERT_TRUE(QFileInfo(kFolder + QLatin1Char('/') + target).isFile())
          << page.toStdString() << " -> " << link.toStdString();
      const QString anchor = link.section(QLatin1Char('#'), 1);
      if (anchor.isEmpty()) continue;
      EXPECT_EQ(Page(target).count(QStringLiteral("<a name=\"%1\">").arg(anchor)), 1)
          << page.toStdString() << " -> " << link.toStdString();
    }
  }
  EXPECT_GT(links, 200);
}

TEST(HelpBookTest, EveryPageIsWhole) {
  for (const QString& page : AllPages()) {
    const QString html = Page(page);
    EXPECT_TRUE(html.endsWith(QLatin1String("</body>\n</html>\n"))) << page.toStdString();
    for (const char* mark : {"<body>", "<h1", "</h1>", "</head>"}) {
      EXPECT_EQ(html.count(QLatin1String(mark)), 1) << page.toStdString() << ": " << mark;
    }
    for (const char* tag : {"p", "table", "tr", "ul", "ol", "li", "pre", "h2", "h3", "code"}) {
      const QRegularExpression opened(QStringLiteral("<%1[ >]").arg(QLatin1String(tag)));
      EXPECT_EQ(html.count(opened), html.count(QStringLiteral("</%1>").arg(QLatin1String(tag))))
          << page.toStdString() << ": " << tag;
    }
  }
}

TEST(HelpBookTest, EveryImageIsUsed) {
  QString all;
  for (const QString& page : AllPages()) all += Page(page);
  const QStringList images = QDir(kFolder + QStringLiteral("/img")).entryList(QDir::Files);
  EXPECT_GE(images.size(), 32);
  for (const QString& image : images) {
    EXPECT_TRUE(all.contains(QStringLiteral("img/") + image)) << image.toStdString();
  }
}

TEST(HelpBookTest, EveryPageStandsInTheContentsOnce) {
  const HelpBook book(kFolder);
  QStringList listed;
  for (const HelpPage& page : book.Pages()) {
    EXPECT_FALSE(page.title.isEmpty());
    EXPECT_FALSE(page.group.isEmpty()) << page.file.toStdString();
    listed << page.file;
  }
  listed << QStringLiteral("index.html");
  listed.sort();
  EXPECT_EQ(listed, AllPages());
}

TEST(HelpBookTest, EveryFormHasItsPlace) {
  const HelpBook book(kFolder);
  for (const Form& form : AllForms()) {
    EXPECT_FALSE(book.PlaceOfForm(QString::fromStdString(form.name)).isEmpty()) << form.name;
  }
  EXPECT_EQ(book.PlaceOfForm(QStringLiteral("loading")), QStringLiteral("loads.html#form-loading"));
  EXPECT_EQ(book.PlaceOfForm(QStringLiteral("no such form")), QString());
}

TEST(HelpBookTest, EveryFamilyHasAnEntryWithItsFigure) {
  const QString pages = Page("families-rolled.html") + Page("families-hollow.html") +
                        Page("families-welded.html") + Page("families-plate.html");
  const QString overview = Page("families.html");
  int families = 0;
  for (const Family& family : AllFamilies()) {
    ++families;
    const QString code = QString::number(family.code);
    const auto at = pages.indexOf(QStringLiteral("<a name=\"family-%1\">").arg(code));
    ASSERT_GE(at, 0) << family.code;
    const QString entry = pages.mid(at, pages.indexOf(QLatin1String("<h2>"), at) - at);
    const QString figure =
        QStringLiteral("img/section-%1.svg").arg(family.code, 3, 10, QLatin1Char('0'));
    EXPECT_TRUE(entry.contains(figure)) << family.code;
    EXPECT_TRUE(entry.contains(QStringLiteral("inputs.html#%1\"").arg(family.form))) << family.code;
    EXPECT_TRUE(overview.contains(QStringLiteral("#family-%1\"").arg(code))) << family.code;
    const QString caption =
        QString::fromUtf8(family.menuCaption).remove(QLatin1Char('&')).trimmed();
    EXPECT_TRUE(entry.contains(caption)) << family.menuCaption;
  }
  EXPECT_EQ(families, 32);
}

TEST(HelpBookTest, EveryCommandOfTheConsoleIsNamed) {
  QProcess cli;
  cli.start(QStringLiteral(KORVANE_CLI), {QStringLiteral("--help")});
  ASSERT_TRUE(cli.waitForFinished());
  const QString usage = QString::fromUtf8(cli.readAllStandardOutput());
  const QStringList commands =
      Captured(usage.mid(usage.indexOf(QLatin1String("Subcommands:"))), "\n  ([a-z]+) ");
  EXPECT_GE(commands.size(), 8);
  const QString page = Page("console.html");
  for (const QString& command : commands) {
    EXPECT_TRUE(page.contains(QStringLiteral("<a name=\"%1\">").arg(command)))
        << command.toStdString();
    const bool shown = command == QLatin1String("session") ||
                       page.contains(QStringLiteral("\nkorvane-cli ") + command);
    EXPECT_TRUE(shown) << "no example of " << command.toStdString();
  }
}

TEST(HelpBookTest, EveryMenuCommandOfAFileIsTold) {
  const QString keys = Page("keys.html");
  for (const char* key : {"Ctrl+N", "Ctrl+O", "Ctrl+S", "Ctrl+P", "Ctrl+Q", "F1"}) {
    EXPECT_TRUE(keys.contains(QLatin1String(key))) << key;
  }
}

/// What the console's session prints for a script.
QString Printed(const QString& script) {
  QProcess cli;
  cli.start(QStringLiteral(KORVANE_CLI),
            {QStringLiteral("session"), QStringLiteral("--decimal"), QStringLiteral("point")});
  cli.write(script.toUtf8());
  cli.closeWriteChannel();
  EXPECT_TRUE(cli.waitForFinished());
  return QString::fromUtf8(cli.readAllStandardOutput()).trimmed();
}
/// The text blocks of a page that are shown as they stand.
QStringList Blocks(const QString& page) {
  QStringList blocks;
  auto it = QRegularExpression(QStringLiteral("<pre[^>]*>(.*?)</pre>"),
                               QRegularExpression::DotMatchesEverythingOption)
                .globalMatch(Page(page));
  while (it.hasNext()) {
    QString text = it.next().captured(1).trimmed();
    blocks << text.replace(QLatin1String("&lt;"), QLatin1String("<"));
  }
  return blocks;
}

/// The steps of the first design, as the page tells them.
TEST(HelpBookTest, FirstDesignComesOutAsThePageSays) {
  const QString steps = QStringLiteral(
      "menu mnunew\nfocus korvane\nenter il 6\nclick cbutt0\nmenu mnup04\nselect Cbo 10\n"
      "menu mnuload1\nenter inp 0\nenter iq1 7.5\nenter iq2 9\nclick iq2_pv\n"
      "click check_selfweight\nclose loading\nfocus korvane\nclick cbuttlateral\n"
      "select Cbo 2\nfocus korvane\nresults\n");
  EXPECT_EQ(Printed(steps), Blocks(QStringLiteral("first-design.html")).value(0));
}

// --- The page of inputs -------------------------------------------------------------------------

TEST(HelpTablesTest, InputsPageIsWhatTheTablesSay) {
  const auto& library = SourceLibrary();
  EXPECT_EQ(Page("inputs.html").toStdString(), InputsPage(library))
      << "make it anew with scripts/help_figures";
}

TEST(HelpTablesTest, NotesPageIsWhatTheTableSays) {
  EXPECT_EQ(Page("notes.html").toStdString(), NotesPage()) << "make it anew with make_help";
}

TEST(HelpTablesTest, BrowsersHaveTheContentsList) {
  const std::string index = Page("index.html").toStdString();
  EXPECT_EQ(Page("pages.js").toStdString(), PagesScript(index)) << "make it anew with make_help";
  const HelpBook book(kFolder);
  EXPECT_EQ(Page("pages.js").count(QLatin1String(".html")), book.Pages().size());
  for (const QString& page : AllPages()) {
    EXPECT_TRUE(Page(page).contains(QLatin1String("<script src=\"book.js\" defer></script>")))
        << page.toStdString();
  }
}

// --- Search -------------------------------------------------------------------------------------

TEST(HelpBookTest, SearchFindsLateral) {
  const HelpBook book(kFolder);
  const QList<HelpHit> hits = book.Search(QStringLiteral("lateral"));
  ASSERT_GT(hits.size(), 5);
  // A part with the word in its heading comes before the others.
  EXPECT_TRUE(hits.first().section.contains(QLatin1String("lateral"), Qt::CaseInsensitive));
  QStringList files;
  for (const HelpHit& hit : hits) files << hit.file;
  EXPECT_TRUE(files.contains(QStringLiteral("lateral.html")));
  EXPECT_FALSE(files.contains(QStringLiteral("keys.html")));
}

TEST(HelpBookTest, SearchWantsAllWordsAndShowsTheFirst) {
  const HelpBook book(kFolder);
  const QList<HelpHit> hits = book.Search(QStringLiteral("overloaded  FLANGE"));
  ASSERT_FALSE(hits.isEmpty());
  bool inMessages = false;
  for (const HelpHit& hit : hits) {
    EXPECT_TRUE(hit.excerpt.contains(QLatin1String("overloaded"), Qt::CaseInsensitive));
    EXPECT_LT(hit.excerpt.size(), 200);
    inMessages = inMessages || hit.file == QLatin1String("messages.html");
  }
  EXPECT_TRUE(inMessages);
  EXPECT_TRUE(book.Search(QStringLiteral("lateral xyzzy")).isEmpty());
  EXPECT_TRUE(book.Search(QStringLiteral("  ")).isEmpty());
}

TEST(HelpBookTest, ShortWordsAreSoughtWholeFirst) {
  const HelpBook book(kFolder);
  const QList<HelpHit> hits = book.Search(QStringLiteral("IR"));
  ASSERT_GT(hits.size(), 5);
  // Parts that have the word itself come before all that have it inside "third" or "required".
  bool inside = false;
  int whole = 0;
  static const QRegularExpression own(QStringLiteral("\\bIR\\b"),
                                      QRegularExpression::CaseInsensitiveOption);
  for (const HelpHit& hit : hits) {
    const bool itself = (hit.section + QLatin1Char(' ') + hit.excerpt).contains(own);
    EXPECT_FALSE(itself && inside) << hit.file.toStdString() << ": " << hit.excerpt.toStdString();
    inside = inside || !itself;
    whole += itself ? 1 : 0;
  }
  EXPECT_GT(whole, 5);
  // A longer word is found in any form of it.
  EXPECT_FALSE(book.Search(QStringLiteral("stiffen")).isEmpty());
}

TEST(HelpBookTest, PlaceOfAShortWordIsItsOwn) {
  EXPECT_EQ(PlaceOfWord(QStringLiteral("a third, ir = 1"), QStringLiteral("IR")).at, 9);
  EXPECT_TRUE(PlaceOfWord(QStringLiteral("a third, ir = 1"), QStringLiteral("IR")).whole);
  EXPECT_EQ(PlaceOfWord(QStringLiteral("a third"), QStringLiteral("IR")).at, 4);
  EXPECT_FALSE(PlaceOfWord(QStringLiteral("a third"), QStringLiteral("IR")).whole);
  EXPECT_EQ(PlaceOfWord(QStringLiteral("stiffeners"), QStringLiteral("stiffener")).at, 0);
  EXPECT_EQ(PlaceOfWord(QStringLiteral("none"), QStringLiteral("IR")).at, -1);
}

TEST(HelpBookTest, SearchKnowsNorwegianWordsAndFormulas) {
  const HelpBook book(kFolder);
  for (const char* word : {"knekking", "vipping", "tverrsnittsklasse", "lastfaktor"}) {
    const QList<HelpHit> hits = book.Search(QString::fromUtf8(word));
    EXPECT_TRUE(std::any_of(hits.begin(), hits.end(), [](const HelpHit& hit) {
      return hit.file == QLatin1String("glossary.html");
    })) << word;
  }
  bool formula = false;
  for (const HelpHit& hit : book.Search(QStringLiteral("sqrt lambda"))) {
    formula = formula || hit.file == QLatin1String("column-buckling.html");
  }
  EXPECT_TRUE(formula);
}

// --- The windows --------------------------------------------------------------------------------

/// The real platform, as the program connects it.
class HelpDeskTest : public testing::Test {
protected:
  HelpDeskTest()
      : library_(SourceLibrary()),
        session_(library_, platform_, false, Folders{library_->folder, own_.path().toStdString()}) {
    session_.Start();
    desktop_ = std::make_unique<Desktop>(session_);
    desk_ = std::make_unique<HelpDesk>(desktop_->window(), kFolder);
    QObject::connect(&platform_, &DesktopPlatform::HelpWanted, desk_.get(), &HelpDesk::OpenFile,
                     Qt::QueuedConnection);
    platform_.SetWindow(&desktop_->window());
    desktop_->window().show();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&desktop_->window()));
  }

  bool Opened() {
    return QTest::qWaitFor(
        [&] { return desk_->viewer() != nullptr && desk_->viewer()->isVisible(); }, 2000);
  }
  template <class W>
  W& In(const char* name) {
    W* widget = desk_->viewer()->findChild<W*>(QString::fromUtf8(name));
    if (widget == nullptr) throw UnknownControl(name);
    return *widget;
  }
  QTextBrowser& PageView() { return In<QTextBrowser>("help_page"); }
  QString Place() {
    const QUrl url = PageView().source();
    return url.fileName() + (url.hasFragment() ? QLatin1Char('#') + url.fragment() : QString());
  }
  void Menu(const char* command) {
    desktop_->window().ActionOf(*FindControl(*TheForms().main, command))->trigger();
  }

  QTemporaryDir own_;
  DesktopPlatform platform_;
  std::shared_ptr<const Library> library_;
  NamedSession session_;
  std::unique_ptr<Desktop> desktop_;
  std::unique_ptr<HelpDesk> desk_;
};

TEST_F(HelpDeskTest, ContentsOpensTheBookAtItsStart) {
  EXPECT_EQ(desk_->viewer(), nullptr);
  Menu("mnuhelpcont");
  ASSERT_TRUE(Opened());
  EXPECT_EQ(Place(), QStringLiteral("index.html"));
  EXPECT_TRUE(PageView().toPlainText().contains(QLatin1String("A first design in five minutes")));
}

TEST_F(HelpDeskTest, SearchForHelpGoesToTheSearchField) {
  Menu("mnuhelpsearch");
  ASSERT_TRUE(Opened());
  EXPECT_EQ(Place(), QStringLiteral("index.html"));
  EXPECT_EQ(desk_->viewer()->focusWidget(), &In<QLineEdit>("help_search"));
}

TEST_F(HelpDeskTest, F1OpensThePageOfTheWindowInFront) {
  QTest::keyClick(&desktop_->window(), Qt::Key_F1);
  ASSERT_TRUE(Opened());
  EXPECT_EQ(Place(), QStringLiteral("main-window.html#form-korvane"));
  desk_->viewer()->close();
  Menu("mnup04");
  FormWindow* form = desktop_->WindowOf(*FindForm("p04"));
  const auto inFront = [form] {
    form->activateWindow();
    return QApplication::activeWindow() == form;
  };
  ASSERT_TRUE(QTest::qWaitFor(inFront, 2000));
  QTest::keyClick(form, Qt::Key_F1);
  EXPECT_TRUE(QTest::qWaitFor(
      [&] { return Place() == QLatin1String("families-rolled.html#form-p04"); }, 2000))
      << Place().toStdString();
}

/// Help is wanted most where a value is refused: F1 doesn't leave the field.
TEST_F(HelpDeskTest, F1LeavesTheFieldInUse) {
  auto* length = desktop_->window().findChild<QLineEdit*>(QStringLiteral("il"));
  length->setFocus();
  length->selectAll();
  QTest::keyClicks(length, QStringLiteral("0.01"));
  const int calculations = session_.Calculations();
  QTest::keyClick(length, Qt::Key_F1);
  ASSERT_TRUE(Opened());
  EXPECT_FALSE(platform_.HasMessages());
  EXPECT_EQ(length->text(), QStringLiteral("0.01"));
  EXPECT_TRUE(session_.Green("korvane.il"));
  EXPECT_EQ(session_.Calculations(), calculations);
}

TEST_F(HelpDeskTest, MissingBookIsTold) {
  HelpDesk none(desktop_->window(), QString());
  none.OpenFile(QStringLiteral("\\Korvane NS3472.chm"));
  auto* box = desktop_->window().findChild<QMessageBox*>();
  ASSERT_NE(box, nullptr);
  EXPECT_EQ(box->icon(), QMessageBox::Warning);
  EXPECT_TRUE(box->text().contains(QLatin1String("share/korvane/help")));
  EXPECT_EQ(none.viewer(), nullptr);
  box->accept();
}

TEST_F(HelpDeskTest, SearchListsPlacesAndOpensThem) {
  Menu("mnuhelpsearch");
  ASSERT_TRUE(Opened());
  auto& field = In<QLineEdit>("help_search");
  auto& results = In<QListWidget>("help_results");
  EXPECT_FALSE(results.isVisible());
  QTest::keyClicks(&field, QStringLiteral("lateral"));
  EXPECT_TRUE(results.isVisible());
  ASSERT_GT(results.count(), 5);
  QTest::keyClick(&field, Qt::Key_Return);
  const HelpHit first = HelpBook(kFolder).Search(QStringLiteral("lateral")).first();
  EXPECT_EQ(PageView().source().fileName(), first.file);
  EXPECT_FALSE(PageView().extraSelections().isEmpty());
  EXPECT_EQ(PageView().extraSelections().first().cursor.selectedText().toLower(),
            QStringLiteral("lateral"));
  field.clear();
  EXPECT_FALSE(results.isVisible());
  EXPECT_TRUE(PageView().extraSelections().isEmpty());
}

/// The viewer shows each formula as its picture, in the letters' size and colour.
TEST_F(HelpDeskTest, FormulasAreShownAsPictures) {
  Menu("mnuhelpcont");
  ASSERT_TRUE(Opened());
  const QString page = Page("column-buckling.html");
  const auto math = QRegularExpression(QStringLiteral("<math\\b.*?</math>"),
                                       QRegularExpression::DotMatchesEverythingOption)
                        .match(page);
  ASSERT_TRUE(math.hasMatch());
  const QString picture = FormulaPicture(math.captured());
  desk_->viewer()->Open(QStringLiteral("column-buckling.html"));
  EXPECT_TRUE(PageView().toHtml().contains(picture));
  const QUrl url = QUrl::fromLocalFile(kFolder + QLatin1Char('/') + picture);
  const auto image = PageView().loadResource(QTextDocument::ImageResource, url).value<QImage>();
  ASSERT_GT(image.width(), 100);
  EXPECT_EQ(qAlpha(image.pixel(0, 0)), 0);
  const QRgb text = PageView().palette().color(QPalette::Text).rgb();
  bool drawn = false;
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x) drawn = drawn || image.pixel(x, y) == text;
  EXPECT_TRUE(drawn);
}

/// On a dark page the ground of a drawing is the page's, and its lines are light.
TEST_F(HelpDeskTest, DrawingsTurnDarkWithThePage) {
  Menu("mnuhelpcont");
  ASSERT_TRUE(Opened());
  QPalette dark = PageView().palette();
  dark.setColor(QPalette::Window, QColor(30, 34, 39));
  dark.setColor(QPalette::Base, QColor(30, 34, 39));
  dark.setColor(QPalette::WindowText, Qt::white);
  dark.setColor(QPalette::Text, Qt::white);
  PageView().setPalette(dark);
  const QUrl url = QUrl::fromLocalFile(kFolder + QStringLiteral("/img/signs.svg"));
  const auto image = PageView().loadResource(QTextDocument::ImageResource, url).value<QImage>();
  ASSERT_FALSE(image.isNull());
  EXPECT_EQ(image.pixelColor(0, 0), QColor(30, 34, 39));
  bool light = false;
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x)
      light = light || image.pixelColor(x, y).lightness() > 240;
  EXPECT_TRUE(light);
}

TEST_F(HelpDeskTest, BackAndForwardFollowThePages) {
  Menu("mnuhelpcont");
  ASSERT_TRUE(Opened());
  auto& back = In<QAction>("help_back");
  auto& forward = In<QAction>("help_forward");
  EXPECT_FALSE(back.isEnabled());
  auto& contents = In<QTreeWidget>("help_contents");
  QTreeWidgetItem* second = contents.topLevelItem(1)->child(0);
  contents.setCurrentItem(second);
  EXPECT_EQ(PageView().documentTitle(), second->text(0));
  ASSERT_TRUE(back.isEnabled());
  back.trigger();
  EXPECT_EQ(Place(), QStringLiteral("index.html"));
  ASSERT_TRUE(forward.isEnabled());
  forward.trigger();
  EXPECT_EQ(PageView().documentTitle(), second->text(0));
  EXPECT_EQ(contents.currentItem(), second);
}

TEST(HelpFolderTest, SourcesAreFoundFromABuildFolder) {
  EXPECT_EQ(QDir(FindHelpFolder()).canonicalPath(), QDir(kFolder).canonicalPath());
}

}  // namespace
}  // namespace korvane
