// SPDX-License-Identifier: GPL-3.0-or-later
// A refused value in every field of every form, with the real message box: its text and icon, the
// focus back in the field, the field green, and no calculation.
#include <QApplication>
#include <QLineEdit>
#include <QMessageBox>
#include <QTimer>

#include "front/desktop/form_window.h"
#include "sections/profile_table.h"
#include "tests/desktop/real_desktop.h"

namespace korvane {
namespace {

/// Closes message boxes as they come and keeps what they said.
class BoxWatch {
public:
  BoxWatch() {
    QObject::connect(&timer_, &QTimer::timeout, [this] {
      auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      // A person sees a box before closing it, and sees each once.
      if (box == nullptr || !box->isActiveWindow() || box->property("seen").toBool()) return;
      box->setProperty("seen", true);
      said << box->text();
      exclamation = exclamation && box->icon() == QMessageBox::Warning;
      box->accept();
    });
    timer_.start(1);
  }
  QStringList said;
  bool exclamation = true;

private:
  QTimer timer_;
};

/// The forms with number fields.
std::vector<std::string> FormsWithFields() {
  std::vector<std::string> names;
  for (const Form& form : AllForms()) {
    for (const Control& c : form.controls) {
      if (c.kind == Kind::Input && c.field.store) {
        names.push_back(form.name);
        break;
      }
    }
  }
  return names;
}

class Refusal : public RealDesktopTest, public testing::WithParamInterface<std::string> {
protected:
  /// Brings the form to the front, with a state in which its fields can be used.
  QWidget& Open() {
    const std::string& name = GetParam();
    desktop_->Act([&] {
      ProjectState& st = session_.st();
      for (const Family& family : AllFamilies()) {
        if (name == family.form) session_.Menu(family.menuControl);
      }
      st.SupportType = 3;
      st.OptimiseOpen = 1;
      st.LateralBucklingCase = 5;
      st.CFactorManual = 1;
      st.WebStiffener = 1;
      st.NP = 100;
      st.cp_mode = 1;
      st.cp_count = 3;
      session_.Calculate();
      if (!session_.IsOpen(name)) session_.Show(name);
      session_.Fill(name);
      st.ResultView = 1;
    });
    if (name == "korvane") return *Main().centralWidget();
    return *desktop_->WindowOf(name);
  }
  void Type(QLineEdit& field, const QString& text) {
    field.window()->activateWindow();
    field.setFocus();
    field.selectAll();
    QTest::keyClicks(&field, text);
    QTest::keyClick(&field, Qt::Key_Return);
  }
};

/// A text that the field refuses, and what is said; 1e39 is no single precision number.
struct Refused {
  QString text = QStringLiteral("1e39");
  QString message = QStringLiteral("Input string mismatch ");
};

Refused RefusedBy(const Control& c, ProjectState st) {
  if (!c.field.limit.accepts) return {};
  for (const char* text : {"-999", "9999"}) {
    c.field.store(st, atof(text));
    if (c.field.limit.accepts(st, atof(text))) continue;
    return {text, QString::fromStdString(c.field.limit.message(st))};
  }
  return {};
}

TEST_P(Refusal, TellsGreensAndKeepsTheFocus) {
  QWidget& window = Open();
  window.window()->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(window.window()));
  int tried = 0;
  for (const Control& c : FindForm(GetParam())->controls) {
    if (c.kind != Kind::Input || !c.field.store) continue;
    const std::string key = GetParam() + "." + c.name;
    if (!session_.Enabled(key) || !session_.Visible(key)) continue;
    auto* field = window.findChild<QLineEdit*>(QString::fromStdString(c.name));
    ASSERT_NE(field, nullptr) << key;
    const QString good = field->text();
    const Refused bad = RefusedBy(c, session_.st());
    BoxWatch boxes;
    // A refused calculation point counts all the same.
    const int calculations = session_.Calculations() + (GetParam() == "chpoints" ? 1 : 0);
    Type(*field, bad.text);
    ASSERT_TRUE(QTest::qWaitFor([&] { return !platform_.HasMessages(); }, 3000));
    EXPECT_EQ(boxes.said, QStringList{bad.message}) << key << " " << bad.text.toStdString();
    EXPECT_TRUE(boxes.exclamation) << key;
    EXPECT_EQ(session_.Calculations(), calculations) << key;
    field->window()->activateWindow();
    EXPECT_TRUE(QTest::qWaitFor([&] { return field->hasFocus(); }, 1000)) << key;
    EXPECT_EQ(field->palette().color(QPalette::Active, QPalette::Base), QColor(0, 255, 0)) << key;
    EXPECT_EQ(session_.FocusedField(), key);
    Type(*field, good);
    EXPECT_EQ(field->palette().color(QPalette::Active, QPalette::Base), QColor(Qt::white)) << key;
    EXPECT_FALSE(platform_.HasMessages()) << key << " " << good.toStdString();
    ++tried;
  }
  EXPECT_GT(tried, 0);
}

INSTANTIATE_TEST_SUITE_P(EachForm, Refusal, testing::ValuesIn(FormsWithFields()),
                         [](const auto& each) { return each.param; });

}  // namespace
}  // namespace korvane
