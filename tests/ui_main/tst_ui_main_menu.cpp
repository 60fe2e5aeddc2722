// The menu, the four pages that it brings into view, and the way back from a child page.
#include "model/multiaction.h"
#include "resources/translationresources.h"
#include "ui_common/messagebox.h"
#include "ui_editor/functionconfigwidget.h"
#include "ui_editor/keyboardwidget.h"
#include "ui_editor/multiactionwidget.h"
#include "ui_main/frameiconbutton.h"
#include "ui_main/mainframe.h"
#include "ui_main/widget.h"
#include "uimainfakes.h"

#include <QtTest>
#include <QtWidgets>

namespace {

const QString Selected = "border:2px solid;\nborder-color: rgb(0, 0, 255);"_s;
const char *const Names[] = {"mFuncSetBtn", "mLayoutSetBtn", "mPictureUploadBtn", "mSystemSetBtn"};
const char *const Pages[] = {"", "layoutPage", "pictureUploadPage", "systemSettingsPage"};

} // namespace

class tst_ui_main_menu : public QObject
{
    Q_OBJECT
    std::unique_ptr<TemporaryCurrentDir> mpDir;
    std::unique_ptr<FakeContext> mpContext;
    RecordingDesktop mDesktop;
    std::unique_ptr<Widget> mpWidget;

    template <class Child>
    Child *child(const char *name) const
    {
        return mpWidget->findChild<Child *>(QString::fromLatin1(name));
    }
    FrameIconButton *entry(int index) const { return child<FrameIconButton>(Names[index]); }
    FunctionConfigWidget *editor() const { return mpWidget->findChild<FunctionConfigWidget *>(); }
    QWidget *page(int index) const { return index == 0 ? editor() : child<QWidget>(Pages[index]); }
    MainFrame *mainFrame() const { return child<MainFrame>("mainframe"); }

    /// @return the only index of a page for which @p is holds; -1 when it is not exactly one.
    static int only(const std::function<bool(int)> &is)
    {
        QVector<int> found;
        for (int index = 0; index < 4; ++index) {
            if (is(index))
                found.append(index);
        }
        return found.size() == 1 ? found.first() : -1;
    }
    int pageInView() const
    {
        return only([this](int index) { return page(index) && page(index)->isVisible(); });
    }
    int selectedEntry() const
    {
        return only([this](int index) { return entry(index)->styleSheet() == Selected; });
    }

private slots:
    void initTestCase() { initTranslationResources(); }

    void init()
    {
        mpDir = std::make_unique<TemporaryCurrentDir>();
        mpContext = std::make_unique<FakeContext>();
        QVERIFY(mpContext->language.Init());
        QVERIFY(mpContext->store.Init());
        mpWidget = std::make_unique<Widget>(*mpContext, mDesktop);
        mpWidget->show();
        QVERIFY(QTest::qWaitForWindowExposed(mpWidget.get()));
    }

    void cleanup()
    {
        MessageBox::setAnswer({});
        mpWidget.reset();
        mpContext.reset();
        mpDir.reset();
    }

    void clickBringsThePageIntoView()
    {
        QCOMPARE(pageInView(), 0);
        QCOMPARE(selectedEntry(), 0);
        for (const int index : {1, 1, 2, 3, 0}) { // 1 twice: it stays selected
            QTest::mouseClick(entry(index), Qt::LeftButton);
            QCOMPARE(pageInView(), index);
            QCOMPARE(selectedEntry(), index);
        }
        mainFrame()->select(4);
        QCOMPARE(pageInView(), 0);
    }

    void entryIsAButton()
    {
        for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter}) {
            mainFrame()->select(0);
            QTest::keyClick(entry(2), key);
            QCOMPARE(pageInView(), 2);
        }
        QTest::mousePress(entry(1), Qt::LeftButton);
        QTest::mouseRelease(entry(1), Qt::LeftButton, {}, QPoint(-5, 5)); // let go beside it
        QTest::mouseClick(entry(1), Qt::RightButton);
        QCOMPARE(pageInView(), 2);
        QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(entry(1));
        QCOMPARE(accessible->text(QAccessible::Name), "Panel Layout"_s);
        accessible->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        QCOMPARE(pageInView(), 1);
        QVERIFY(accessible->state().checked);
    }

    void homeButtonLeadsBackFromAChildPage()
    {
        auto *home = child<QPushButton>("homeButton");
        QVERIFY(!home->isVisible());
        editor()->onKeyBtnClicked({1, 1, 3}, 18, true);
        QCOMPARE(editor()->curPageId(), 4);
        QVERIFY(home->isVisible());
        for (int index = 1; index <= 3; ++index) {
            mainFrame()->select(index);
            QVERIFY(!home->isVisible());
        }
        mainFrame()->select(0);
        QVERIFY(home->isVisible());
        home->click();
        QVERIFY(!home->isVisible());
        QCOMPARE(editor()->curPageId(), 1);
        mainFrame()->select(0);
        QVERIFY(!home->isVisible());
    }

    void homeButtonStaysWhenThePersonDoes()
    {
        mpContext->store.createKeyAttribute(1, 4, 2, 4);
        editor()->onKeyBtnClicked({1, 1, 3}, 18, true);
        editor()->onKeyBtnClicked({1, 4, 2}, 4, true);
        mpWidget->findChild<MultiActionWidget *>()->addStep(6);
        QMessageBox::StandardButton answer = QMessageBox::Cancel;
        MessageBox::setAnswer([&](const QMessageBox &) { return answer; });
        auto *home = child<QPushButton>("homeButton");
        home->click();
        QVERIFY(home->isVisible());
        QCOMPARE(editor()->curPageId(), 4);
        answer = QMessageBox::Discard;
        home->click();
        QVERIFY(!home->isVisible());
        QCOMPARE(editor()->curPageId(), 1);
    }

    void unsavedStepsAreAskedAboutBeforeThePageIsLeft()
    {
        mpContext->store.createKeyAttribute(1, 1, 4, 4);
        editor()->onKeyBtnClicked({1, 1, 4}, 4, true);
        mpWidget->findChild<MultiActionWidget *>()->addStep(6);
        QMessageBox::StandardButton answer = QMessageBox::Cancel;
        int boxes = 0;
        MessageBox::setAnswer([&](const QMessageBox &) {
            ++boxes;
            return answer;
        });
        QTest::mouseClick(entry(3), Qt::LeftButton);
        QCOMPARE(boxes, 1);
        QCOMPARE(pageInView(), 0);
        QCOMPARE(selectedEntry(), 0);
        QVERIFY(!mpWidget->close());
        QVERIFY(mpWidget->isVisible());
        answer = QMessageBox::Discard;
        QTest::mouseClick(entry(3), Qt::LeftButton);
        QCOMPARE(pageInView(), 3);
        QVERIFY(mpWidget->close());
    }

    /// With the largest font that the program chooses by itself, which is that of 96 dots per inch.
    void fitsIntoASmallScreen()
    {
        const QVector<int> functions{2, 3, 4, 15, 16, 17};
        for (int i = 0; i < functions.size(); ++i)
            mpContext->store.createKeyAttribute(1, 1, i + 1, functions.at(i));
        auto *grid = mpWidget->findChild<KeyboardWidget *>();
        for (const int language : {0, 1, 2}) {
            mpContext->language.setLanguage(language);
            for (int i = 0; i < functions.size(); ++i) {
                grid->setCurrentKey(i + 1);
                const QSize least = mpWidget->minimumSizeHint();
                const QString where = "language %1, function %2"_s.arg(language).arg(functions.at(i));
                const QString size = "%1 x %2"_s.arg(least.width()).arg(least.height());
                QVERIFY2(least.width() <= 1024 && least.height() <= 640, qPrintable(where + u' ' + size));
            }
        }
    }

    void languageChangesEverywhereAtOnce()
    {
        for (int index = 3; index > 0; --index)
            mainFrame()->select(index);
        const auto text = [this](const char *name) {
            return child<QLabel>(name)->text();
        };
        child<QRadioButton>("language1")->click();
        QCOMPARE(text("mFuncSetBtn_textlabel"), "功能配置"_s);
        QCOMPARE(text("mSystemSetBtn_textlabel"), "系统设置"_s);
        QCOMPARE(child<QPushButton>("readDeviceConfig")->text(), "读取设备配置"_s);
        QCOMPARE(child<QPushButton>("homeButton")->text(), "首页"_s);
        QCOMPARE(child<QPushButton>("addToGallery")->text(), "添加到图库"_s);
        QVector<QString> captions;
        for (int index = 1; index <= 3; ++index)
            captions.append(page(index)->findChild<QLabel *>("caption"_s)->text());
        QCOMPARE(captions, QVector<QString>({"面板布局"_s, "图片上传"_s, "系统设置"_s}));
        child<QRadioButton>("language0")->click();
        QCOMPARE(text("mFuncSetBtn_textlabel"), "Function Configuration"_s);
        QVERIFY(child<QRadioButton>("language0")->isChecked());
    }
};

QTEST_MAIN(tst_ui_main_menu)
#include "tst_ui_main_menu.moc"
