// SPDX-License-Identifier: GPL-3.0-or-later
#include "front/desktop/help_viewer.h"

#include <QAbstractTextDocumentLayout>
#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QDir>
#include <QImage>
#include <QLineEdit>
#include <QListWidget>
#include <QPainter>
#include <QRegularExpression>
#include <QScreen>
#include <QScrollBar>
#include <QSettings>
#include <QShortcut>
#include <QSplitter>
#include <QStackedWidget>
#include <QStyledItemDelegate>
#include <QTextBlock>
#include <QToolBar>
#include <QToolButton>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <algorithm>

#include "front/desktop/own_folder.h"
#include "front/desktop/svg_reader.h"
#include "front/desktop/theme.h"

namespace korvane {

namespace {

/// Pictures are shown no wider, logical pixels; in a narrow window no wider than the page.
constexpr double kWidest = 660;
constexpr double kLeastWidth = 160;
/// White edge around a drawing.
constexpr double kRim = 8;

QImage Drawing(const QByteArray& file, double ratio, double widest) {
  const SvgDrawing svg(file);
  const QSizeF own = svg.ViewBox().size();
  // Section figures are square and stand beside their text: smaller than a diagram.
  const double width =
      std::min(own.width() == own.height() ? 240.0 : own.width(), widest - 2 * kRim);
  const QSizeF drawn = own * (width / own.width());
  const QSizeF size = drawn + QSizeF(2 * kRim, 2 * kRim);
  QImage image((size * ratio).toSize(), QImage::Format_RGB32);
  image.setDevicePixelRatio(ratio);
  image.fill(Qt::white);
  QPainter painter(&image);
  svg.Paint(painter, QRectF(QPointF(kRim, kRim), drawn));
  return image;
}

/// A drawing on the page's own ground: in the dark its lines are light, and its colours stay.
void Darken(QImage& image, const QPalette& palette) {
  const QColor ground = palette.color(QPalette::Base);
  const float least = ground.lightnessF();
  for (int y = 0; y < image.height(); ++y) {
    auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
    for (int x = 0; x < image.width(); ++x) {
      const QColor was = QColor::fromRgb(line[x]);
      if (line[x] == qRgb(255, 255, 255)) {
        line[x] = ground.rgb();
      } else {
        line[x] = QColor::fromHslF(std::max(0.0F, was.hslHueF()), was.hslSaturationF(),
                                   1.0F - was.lightnessF() * (1.0F - least))
                      .rgb();
      }
    }
  }
}

/// A formula in the page's own letters, their size and their colour; smaller where it is wider
/// than the page.
QImage FormulaImage(QByteArray file, double ratio, const QPalette& palette, double letters,
                    double widest) {
  // Those of scripts/help_formulas have 16 pixels; their small letters are lower than the page's.
  constexpr double kDrawnLetters = 16 / 1.2;
  file.replace("#000", palette.color(QPalette::Text).name().toLatin1());
  const SvgDrawing svg(file);
  const QSizeF own = svg.Size();
  const QSizeF drawn = own * std::min(letters / kDrawnLetters, widest / own.width());
  QImage image((drawn * ratio).toSize(), QImage::Format_ARGB32_Premultiplied);
  image.setDevicePixelRatio(ratio);
  image.fill(Qt::transparent);
  QPainter painter(&image);
  svg.Paint(painter, QRectF(QPointF(0, 0), drawn));
  return image;
}

QImage Photo(const QByteArray& file, double ratio, double widest) {
  QImage image = QImage::fromData(file);
  const int pixels = static_cast<int>(widest * ratio);
  if (image.width() > pixels) {
    image = image.scaledToWidth(pixels, Qt::SmoothTransformation);
    image.setDevicePixelRatio(ratio);
  }
  return image;
}

/// Colours of words that were searched for, the same on a chosen entry.
struct Mark {
  QColor ground, text;
};
Mark MarkOf(const QPalette& palette) {
  return IsDark(palette) ? Mark{QColor(0x6b, 0x57, 0x00), QColor(Qt::white)}
                         : Mark{QColor(0xff, 0xe2, 0x6a), QColor(Qt::black)};
}

/// The text as HTML with all of the words on a coloured ground.
QString Marked(const QString& text, const QStringList& words, const Mark& mark) {
  QStringList patterns;
  for (const QString& word : words) {
    const QString plain = QRegularExpression::escape(word);
    patterns << (PlaceOfWord(text, word).whole ? QStringLiteral("\\b%1\\b").arg(plain) : plain);
  }
  const QRegularExpression any(patterns.join(QLatin1Char('|')),
                               QRegularExpression::CaseInsensitiveOption);
  QString html;
  qsizetype done = 0;
  for (auto it = any.globalMatch(text); it.hasNext();) {
    const auto match = it.next();
    html += text.mid(done, match.capturedStart() - done).toHtmlEscaped();
    html += QStringLiteral("<span style=\"background-color:%1; color:%2\">%3</span>")
                .arg(mark.ground.name(), mark.text.name(), match.captured().toHtmlEscaped());
    done = match.capturedEnd();
  }
  return html + text.mid(done).toHtmlEscaped();
}

constexpr int kHtmlRole = Qt::UserRole + 1;

/// An entry of the hits: title, and the excerpt with the words marked.
class HitDelegate : public QStyledItemDelegate {
public:
  using QStyledItemDelegate::QStyledItemDelegate;

  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override {
    QStyleOptionViewItem frame = option;
    initStyleOption(&frame, index);
    frame.text.clear();
    frame.widget->style()->drawControl(QStyle::CE_ItemViewItem, &frame, painter, frame.widget);
    QTextDocument text;
    LayOut(text, option, index);
    painter->save();
    painter->translate(option.rect.topLeft());
    QAbstractTextDocumentLayout::PaintContext context;
    const bool chosen = (option.state & QStyle::State_Selected) != 0;
    context.palette = option.palette;
    context.palette.setColor(
        QPalette::Text, option.palette.color(chosen ? QPalette::HighlightedText : QPalette::Text));
    text.documentLayout()->draw(painter, context);
    painter->restore();
  }

  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    QTextDocument text;
    LayOut(text, option, index);
    return text.size().toSize();
  }

private:
  static void LayOut(QTextDocument& text, const QStyleOptionViewItem& option,
                     const QModelIndex& index) {
    text.setDefaultFont(option.font);
    text.setDocumentMargin(6);
    text.setHtml(index.data(kHtmlRole).toString());
    const auto* view = qobject_cast<const QAbstractItemView*>(option.widget);
    if (view != nullptr) text.setTextWidth(view->viewport()->width());
  }
};

QStringList WordsOf(const QString& text) {
  return text.simplified().split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

}  // namespace

// --- Page ---------------------------------------------------------------------------------------

QVariant HelpPageView::loadResource(int type, const QUrl& name) {
  const QVariant resource = QTextBrowser::loadResource(type, name);
  const QByteArray file = resource.toByteArray();
  if (type == QTextDocument::HtmlResource) return WithFormulaPictures(QString::fromUtf8(file));
  if (type != QTextDocument::ImageResource || file.isEmpty()) return resource;
  const bool drawn = name.path().endsWith(QLatin1String(".svg"));
  // Most pages are longer than the window.
  const double bar = verticalScrollBar()->sizeHint().width();
  const double room = width() - bar - 2 * document()->documentMargin();
  const double widest = std::clamp(room, kLeastWidth, kWidest);
  if (name.path().contains(QLatin1String("/formulas/"))) {
    constexpr double kIndent = 40;  // of a formula's paragraph
    return FormulaImage(file, devicePixelRatioF(), palette(), QFontInfo(font()).pixelSize(),
                        std::max(kLeastWidth, widest - kIndent));
  }
  if (!drawn) return Photo(file, devicePixelRatioF(), widest);
  QImage image = Drawing(file, devicePixelRatioF(), widest);
  if (IsDark(palette())) Darken(image, palette());
  return image;
}

// --- Window -------------------------------------------------------------------------------------

HelpViewer::HelpViewer(const HelpBook& book) : book_(book) {
  setObjectName(QStringLiteral("help"));
  setWindowTitle(tr("Help"));
  split_ = new QSplitter(Qt::Horizontal);
  split_->setChildrenCollapsible(false);
  split_->addWidget(Side());
  split_->addWidget(Reader());
  split_->setStretchFactor(1, 1);
  split_->setSizes({Ems(this, 24), Ems(this, 72)});
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->addWidget(split_);
  resize(QSize(Ems(this, 98), Ems(this, 66)).boundedTo(screen()->availableSize() * 9 / 10));
  const QSettings store = UserSettings();
  restoreGeometry(store.value(QStringLiteral("Help/geometry")).toByteArray());
  split_->restoreState(store.value(QStringLiteral("Help/split")).toByteArray());
  FillContents();
}

QWidget* HelpViewer::Side() {
  auto* side = new QWidget;
  auto* column = new QVBoxLayout(side);
  search_ = new QLineEdit;
  search_->setObjectName(QStringLiteral("help_search"));
  search_->setPlaceholderText(tr("Search the book (Ctrl+F)"));
  search_->setAccessibleName(tr("Search the book"));
  search_->setClearButtonEnabled(true);
  contents_ = new QTreeWidget;
  contents_->setObjectName(QStringLiteral("help_contents"));
  contents_->setAccessibleName(tr("Contents"));
  contents_->setHeaderHidden(true);
  contents_->setIndentation(Ems(this, 1));
  results_ = new QListWidget;
  results_->setObjectName(QStringLiteral("help_results"));
  results_->setAccessibleName(tr("Places found"));
  results_->setItemDelegate(new HitDelegate(results_));
  results_->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
  // Always there, so that the width that the entries are laid out for stays.
  results_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
  results_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  results_->setResizeMode(QListView::Adjust);
  lists_ = new QStackedWidget;
  lists_->addWidget(contents_);
  lists_->addWidget(results_);
  column->addWidget(search_);
  column->addWidget(lists_, 1);
  connect(search_, &QLineEdit::textChanged, this, &HelpViewer::Search);
  connect(search_, &QLineEdit::returnPressed, this, [this] { results_->setCurrentRow(0); });
  connect(results_, &QListWidget::currentRowChanged, this, &HelpViewer::OpenHit);
  connect(contents_, &QTreeWidget::currentItemChanged, this, [this](QTreeWidgetItem* item) {
    const QString file = item == nullptr ? QString() : item->data(0, Qt::UserRole).toString();
    if (!file.isEmpty()) ShowPage(file);
  });
  return side;
}

QWidget* HelpViewer::Reader() {
  auto* reader = new QWidget;
  auto* column = new QVBoxLayout(reader);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(0);
  page_ = new HelpPageView;
  page_->setObjectName(QStringLiteral("help_page"));
  page_->setAccessibleName(tr("Page"));
  page_->setFrameShape(QFrame::NoFrame);
  page_->document()->setDocumentMargin(Ems(this, 1.5));
  auto* bar = new QToolBar;
  const auto add = [&](const QString& text, const QKeySequence& keys, auto slot) {
    QAction* action = bar->addAction(text, page_, slot);
    action->setShortcut(keys);
    action->setToolTip(text + QStringLiteral(" (") + keys.toString(QKeySequence::NativeText) +
                       QLatin1Char(')'));
    return action;
  };
  QAction* back =
      add(tr("Back"), QKeySequence(QStringLiteral("Alt+Left")), &QTextBrowser::backward);
  QAction* forward =
      add(tr("Forward"), QKeySequence(QStringLiteral("Alt+Right")), &QTextBrowser::forward);
  back->setObjectName(QStringLiteral("help_back"));
  forward->setObjectName(QStringLiteral("help_forward"));
  back->setEnabled(false);
  forward->setEnabled(false);
  QAction* start = bar->addAction(tr("Contents"));
  start->setShortcut(QKeySequence(QStringLiteral("Alt+Home")));
  connect(start, &QAction::triggered, this, [this] { ShowPage(HelpBook::Start()); });
  connect(page_, &QTextBrowser::backwardAvailable, back, &QAction::setEnabled);
  connect(page_, &QTextBrowser::forwardAvailable, forward, &QAction::setEnabled);
  connect(page_, &QTextBrowser::sourceChanged, this, &HelpViewer::FollowPage);
  connect(new QShortcut(QKeySequence::Find, this), &QShortcut::activated, this,
          &HelpViewer::FocusSearch);
  connect(new QShortcut(QKeySequence::Cancel, this), &QShortcut::activated, this, [this] {
    if (search_->text().isEmpty()) {
      close();
    } else {
      search_->clear();
    }
  });
  column->addWidget(bar);
  column->addWidget(page_, 1);
  return reader;
}

void HelpViewer::FillContents() {
  QTreeWidgetItem* group = nullptr;
  for (const HelpPage& page : book_.Pages()) {
    if (group == nullptr || group->text(0) != page.group) {
      group = new QTreeWidgetItem(contents_, {page.group});
      group->setFlags(Qt::ItemIsEnabled);
      QFont bold = contents_->font();
      bold.setBold(true);
      group->setFont(0, bold);
    }
    auto* item = new QTreeWidgetItem(group, {page.title});
    item->setData(0, Qt::UserRole, page.file);
    item->setToolTip(0, page.title);
  }
  contents_->expandAll();
}

void HelpViewer::Open(const QString& place) {
  ShowPage(place);
  setWindowState(windowState() & ~Qt::WindowMinimized);
  show();
  raise();
  activateWindow();
  page_->setFocus();
}

void HelpViewer::FocusSearch() {
  search_->setFocus();
  search_->selectAll();
}

void HelpViewer::ShowPage(const QString& place) {
  QUrl url = QUrl::fromLocalFile(
      QDir(book_.Folder()).absoluteFilePath(place.section(QLatin1Char('#'), 0, 0)));
  const QString anchor = place.section(QLatin1Char('#'), 1);
  if (!anchor.isEmpty()) url.setFragment(anchor);
  page_->setSource(url);
}

void HelpViewer::FollowPage(const QUrl& url) {
  setWindowTitle(page_->documentTitle().isEmpty()
                     ? tr("Help")
                     : page_->documentTitle() + QStringLiteral(" - ") + tr("Help"));
  // The page is there already; its entry is only marked.
  const QSignalBlocker quiet(contents_);
  for (QTreeWidgetItemIterator it(contents_); *it != nullptr; ++it) {
    if ((*it)->data(0, Qt::UserRole).toString() == url.fileName()) {
      contents_->setCurrentItem(*it);
      return;
    }
  }
  contents_->setCurrentItem(nullptr);
}

void HelpViewer::Search() {
  const QStringList words = WordsOf(search_->text());
  hits_ = book_.Search(search_->text());
  lists_->setCurrentWidget(words.isEmpty() ? static_cast<QWidget*>(contents_) : results_);
  const QSignalBlocker quiet(results_);
  results_->clear();
  const Mark mark = MarkOf(palette());
  for (const HelpHit& hit : hits_) {
    const QString where =
        hit.section == hit.title ? hit.title : hit.title + QStringLiteral(": ") + hit.section;
    auto* item = new QListWidgetItem(where + QLatin1Char('\n') + hit.excerpt, results_);
    item->setData(kHtmlRole, QStringLiteral("<b>%1</b><br>%2")
                                 .arg(where.toHtmlEscaped(), Marked(hit.excerpt, words, mark)));
  }
  if (hits_.isEmpty() && !words.isEmpty()) {
    const QString none = tr("Nothing found. Fewer or shorter words find more.");
    auto* item = new QListWidgetItem(none, results_);
    item->setData(kHtmlRole, none.toHtmlEscaped());
    item->setFlags(Qt::NoItemFlags);
  }
  results_->setCurrentRow(-1);
  MarkWords();
}

void HelpViewer::OpenHit(int row) {
  if (row < 0 || row >= hits_.size()) return;
  const HelpHit& hit = hits_[row];
  ShowPage(hit.file);
  MarkWords();
  int heading = -1;
  for (QTextBlock block = page_->document()->begin(); block.isValid(); block = block.next()) {
    if (block.blockFormat().headingLevel() == 0 || ++heading != hit.heading) continue;
    // The heading comes to the top of the page.
    QScrollBar* bar = page_->verticalScrollBar();
    const QRectF place = page_->document()->documentLayout()->blockBoundingRect(block);
    bar->setValue(static_cast<int>(place.top()) - Ems(this, 0.5));
    return;
  }
}

void HelpViewer::MarkWords() {
  QList<QTextEdit::ExtraSelection> marks;
  QTextCharFormat format;
  const Mark mark = MarkOf(palette());
  format.setBackground(mark.ground);
  format.setForeground(mark.text);
  for (const QString& word : WordsOf(search_->text())) {
    if (word.size() < 2) continue;
    QTextCursor at(page_->document());
    const auto how = PlaceOfWord(page_->toPlainText(), word).whole ? QTextDocument::FindWholeWords
                                                                   : QTextDocument::FindFlags();
    while (!(at = page_->document()->find(word, at, how)).isNull())
      marks << QTextEdit::ExtraSelection{at, format};
  }
  page_->setExtraSelections(marks);
}

void HelpViewer::closeEvent(QCloseEvent* event) {
  QSettings store = UserSettings();
  store.setValue(QStringLiteral("Help/geometry"), saveGeometry());
  store.setValue(QStringLiteral("Help/split"), split_->saveState());
  event->accept();
}

}  // namespace korvane
