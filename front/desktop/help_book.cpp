// SPDX-License-Identifier: GPL-3.0-or-later
#include "front/desktop/help_book.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QTextBlock>
#include <QTextDocument>
#include <algorithm>

namespace korvane {

namespace {

bool HasBook(const QString& folder) {
  return QFileInfo(QDir(folder).filePath(HelpBook::Start())).isFile();
}

/// Text of an HTML fragment without its tags.
QString Plain(const QString& html) {
  QTextDocument document;
  document.setHtml(html);
  return document.toPlainText().simplified();
}

/// Words of up to three letters, such as IR or Mcr, stand in many others.
constexpr qsizetype kShortWord = 3;

const QRegularExpression& Formula() {
  static const QRegularExpression formula(
      QStringLiteral("<math[^>]*alttext=\"(?<text>[^\"]*)\".*?</math>"),
      QRegularExpression::DotMatchesEverythingOption);
  return formula;
}

/// A page with the words of its formulas in their place.
QString WithFormulaTexts(QString html) {
  return html.replace(Formula(), QStringLiteral("\\1"));
}

bool HasAll(const QString& text, const QStringList& words) {
  return std::all_of(words.begin(), words.end(),
                     [&](const QString& word) { return text.contains(word, Qt::CaseInsensitive); });
}

/// Some words before and after the place where a word searched for stands.
QString Excerpt(const QString& text, qsizetype at) {
  constexpr int kBefore = 40;
  constexpr int kLength = 130;
  auto from = std::max<qsizetype>(0, at - kBefore);
  if (from > 0) from = text.indexOf(QLatin1Char(' '), from) + 1;
  if (from > at) from = at;
  QString part = text.mid(from, kLength);
  if (from > 0) part.prepend(QStringLiteral("... "));
  if (from + kLength < text.size()) part.append(QStringLiteral(" ..."));
  return part;
}

}  // namespace

QString FormulaPicture(const QString& math) {
  static const QRegularExpression spaces(QStringLiteral("[ \\t\\r\\n]"));
  const QByteArray tight = QString(math).remove(spaces).toUtf8();
  const QByteArray hash = QCryptographicHash::hash(tight, QCryptographicHash::Sha256).toHex();
  return QStringLiteral("formulas/%1.svg").arg(QString::fromLatin1(hash.left(16)));
}

QString WithFormulaPictures(const QString& html) {
  QString page;
  qsizetype done = 0;
  for (auto it = Formula().globalMatch(html); it.hasNext();) {
    const auto match = it.next();
    page += html.mid(done, match.capturedStart() - done);
    page += QStringLiteral("<img src=\"%1\" style=\"vertical-align: middle\">")
                .arg(FormulaPicture(match.captured()));
    done = match.capturedEnd();
  }
  return page + html.mid(done);
}

WordPlace PlaceOfWord(const QString& text, const QString& word) {
  if (word.size() <= kShortWord) {
    const QRegularExpression whole(
        QStringLiteral("(?<!\\w)%1(?!\\w)").arg(QRegularExpression::escape(word)),
        QRegularExpression::CaseInsensitiveOption | QRegularExpression::UseUnicodePropertiesOption);
    const auto match = whole.match(text);
    if (match.hasMatch()) return {match.capturedStart(), true};
  }
  return {text.indexOf(word, 0, Qt::CaseInsensitive), false};
}

QString FindHelpFolder() {
  const QDir here(QCoreApplication::applicationDirPath());
  const QString installed = here.filePath(QStringLiteral(KORVANE_HELP_FROM_BIN));
  if (HasBook(installed)) return QDir::cleanPath(installed);
  // Run from a build folder inside the sources.
  QDir up = here;
  do {
    const QString sources = up.filePath(QStringLiteral("docs/help"));
    if (HasBook(sources)) return sources;
  } while (up.cdUp());
  const QString built = QStringLiteral(KORVANE_BUILD_HELP);
  return HasBook(built) ? built : QString();
}

HelpBook::HelpBook(QString folder) : folder_(std::move(folder)) {
  if (folder_.isEmpty()) return;
  // The contents are the list of pages: a heading for each group, an entry for each page.
  static const QRegularExpression entry(
      QStringLiteral("<h2>(?<group>.*?)</h2>|<li><a href=\"(?<file>[^\"#]+)\">(?<title>.*?)</a>"));
  QString group;
  auto it = entry.globalMatch(Html(HelpBook::Start()));
  while (it.hasNext()) {
    const auto match = it.next();
    if (match.hasCaptured(u"file")) {
      pages_ << HelpPage{match.captured(u"file"), Plain(match.captured(u"title")), group};
    } else {
      group = Plain(match.captured(u"group"));
    }
  }
}

QString HelpBook::Html(const QString& file) const {
  QFile source(QDir(folder_).filePath(file));
  if (!source.open(QIODevice::ReadOnly)) return {};
  return QString::fromUtf8(source.readAll());
}

QString HelpBook::PlaceOfForm(const QString& form) const {
  const QString anchor = QStringLiteral("form-") + form;
  const QString mark = QStringLiteral("<a name=\"%1\">").arg(anchor);
  for (const HelpPage& page : pages_) {
    if (Html(page.file).contains(mark)) return page.file + QLatin1Char('#') + anchor;
  }
  return {};
}

void HelpBook::ReadSections() const {
  for (int p = 0; p < pages_.size(); ++p) {
    QTextDocument document;
    document.setHtml(WithFormulaTexts(Html(pages_[p].file)));
    int heading = -1;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
      const QString text = block.text().remove(QChar::ObjectReplacementCharacter).simplified();
      if (block.blockFormat().headingLevel() > 0) {
        sections_ << Section{p, ++heading, text, QString()};
      } else if (heading >= 0 && !text.isEmpty()) {
        sections_.last().text += text + QLatin1Char(' ');
      }
    }
  }
}

QList<HelpHit> HelpBook::Search(const QString& words) const {
  const QStringList all = words.simplified().split(QLatin1Char(' '), Qt::SkipEmptyParts);
  if (all.isEmpty()) return {};
  if (sections_.isEmpty()) ReadSections();
  struct Ranked {
    HelpHit hit;
    std::pair<std::ptrdiff_t, std::ptrdiff_t> rank;
  };
  QList<Ranked> ranked;
  for (const Section& section : sections_) {
    if (!HasAll(section.title + QLatin1Char(' ') + section.text, all)) continue;
    const HelpPage& page = pages_[section.page];
    const auto whole = std::count_if(all.begin(), all.end(), [&](const QString& word) {
      return PlaceOfWord(section.title, word).whole || PlaceOfWord(section.text, word).whole;
    });
    const auto inHeading = std::count_if(all.begin(), all.end(), [&](const QString& word) {
      const WordPlace place = PlaceOfWord(section.title, word);
      return place.at >= 0 && (place.whole || word.size() > kShortWord);
    });
    const WordPlace first = PlaceOfWord(section.text, all.first());
    ranked << Ranked{{page.file, section.heading, page.title, section.title,
                      Excerpt(section.text, std::max<qsizetype>(0, first.at))},
                     {whole, inHeading}};
  }
  std::stable_sort(ranked.begin(), ranked.end(),
                   [](const Ranked& a, const Ranked& b) { return a.rank > b.rank; });
  QList<HelpHit> hits;
  for (const Ranked& r : ranked) hits << r.hit;
  return hits;
}

}  // namespace korvane
