// SPDX-License-Identifier: GPL-3.0-or-later
// The help book as it stands in its folder: its pages, where a form is told, and its search.
#pragma once

#include <QList>
#include <QString>
#include <QStringList>

namespace korvane {

/// A page in the order of the contents.
struct HelpPage {
  QString file;   ///< "loads.html"
  QString title;  ///< as the contents say it
  QString group;  ///< heading of the contents above it
};

/// A part of a page, from one heading to the next, that has all the words searched for.
struct HelpHit {
  QString file;
  int heading = 0;  ///< which heading of the page it is under, counted from 0
  QString title;    ///< page
  QString section;  ///< that heading
  QString excerpt;  ///< text around the first word
};

/// The installed book, else the one of the sources that the program was built from, found from
/// the program's own place; empty when there is none.
QString FindHelpFolder();

/// A page for a viewer that knows no MathML: each formula is the picture that was made of it.
QString WithFormulaPictures(const QString& html);
/// Name of the picture of a formula, a hash of its own text: "formulas/0123456789abcdef.svg".
QString FormulaPicture(const QString& math);

/// Where a word that is searched for stands in a text, without regard to case: a short word as a
/// word of its own where it stands so. -1 when it isn't there.
struct WordPlace {
  qsizetype at = -1;
  bool whole = false;
};
WordPlace PlaceOfWord(const QString& text, const QString& word);

class HelpBook {
public:
  explicit HelpBook(QString folder);
  /// The page of the contents.
  static QString Start() { return QStringLiteral("index.html"); }
  bool Exists() const { return !pages_.isEmpty(); }
  const QString& Folder() const { return folder_; }
  const QList<HelpPage>& Pages() const { return pages_; }
  /// "loads.html#form-loading" for loading; empty for a form that no page tells about.
  QString PlaceOfForm(const QString& form) const;
  /// Parts that have all the words. Those where a short word stands as a word of its own come
  /// first, then those with more of the words in their heading.
  QList<HelpHit> Search(const QString& words) const;

private:
  struct Section {
    int page = 0;
    int heading = 0;
    QString title, text;
  };
  void ReadSections() const;
  QString Html(const QString& file) const;

  QString folder_;
  QList<HelpPage> pages_;
  mutable QList<Section> sections_;  ///< read with the first search
};

}  // namespace korvane
