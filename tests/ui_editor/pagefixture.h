/// The editor page in a window of its own.
#pragma once

#include "editorfixture.h"
#include "model/functionids.h"
#include "ui_common/messagebox.h"
#include "ui_editor/functionconfigwidget.h"
#include "ui_editor/functionlist.h"
#include "ui_editor/keyboardwidget.h"
#include "ui_editor/keyclipboard.h"
#include "ui_editor/keywidget.h"
#include "ui_editor/multiactionwidget.h"

using vorlinmodel::key_id_t;
using Panel = EditorFixture::Panel;

constexpr int Play = 5;
constexpr int Child = vorlinmodel::CHILDREN_PAGE_FID;
constexpr int Return = vorlinmodel::RETURN_MAIN_FID;

/// The page in a window of its own.
class PageFixture : public EditorFixture
{
public:
    using Prepare = std::function<void(EditorFixture &)>;

    explicit PageFixture(const Prepare &prepare = {}, Panel withPanel = Panel::None)
        : EditorFixture(withPanel)
    {
        if (prepare)
            prepare(*this);
        window.setStyleSheet("* {%1}"_s.arg(fontStyle())); // as the program's window does
        page = std::make_unique<FunctionConfigWidget>(editor(), &window);
        isSetUp = page->setup();
        page->resize(828, 576);
        window.resize(page->size());
        window.show();
        window.activateWindow();
        isSetUp = QTest::qWaitForWindowActive(&window) && isSetUp;
        takeRequests();
    }
    ~PageFixture() override { page.reset(); }

    KeyboardWidget *grid() const
    {
        for (auto *candidate : page->findChildren<KeyboardWidget *>()) {
            if (candidate->isVisible())
                return candidate;
        }
        return nullptr;
    }
    int builtGrids() const { return page->findChildren<KeyboardWidget *>().size(); }
    KeyWidget *cell(int key) const { return grid()->cell(key); }
    void click(int key) { QTest::mouseClick(cell(key), Qt::LeftButton); }
    void doubleClick(int key) { QTest::mouseDClick(cell(key), Qt::LeftButton); }
    void press(const char *button)
    {
        auto *found = page->findChild<QAbstractButton *>(QLatin1String(button));
        QVERIFY2(found, button);
        QTest::mouseClick(found, Qt::LeftButton);
    }
    void keys(const char *sequence) // to whatever has the focus
    {
        QWidget *focus = window.focusWidget() ? window.focusWidget() : page.get();
        QTest::keySequence(focus, QKeySequence(QLatin1String(sequence)));
    }
    void select(int key)
    {
        click(key);
        cell(key)->setFocus();
    }
    QString notice() const
    {
        auto *text = page->findChild<QLabel *>("noticeText"_s);
        return text->isVisible() ? text->text() : QString();
    }
    QString label() const { return page->findChild<QLabel *>("page"_s)->text(); }
    QListWidget *list() const { return page->findChild<QListWidget *>("functions"_s); }
    int fid(const key_id_t &key) const
    {
        const auto record = store.getKeyAttribute(key);
        return record ? record->mFId : 0;
    }
    QVector<int> offered() const
    {
        QVector<int> fids;
        for (int row = 0; row < list()->count(); ++row) {
            if (!list()->item(row)->isHidden() && list()->item(row)->data(Qt::UserRole).toInt() != 0)
                fids.append(list()->item(row)->data(Qt::UserRole).toInt());
        }
        return fids;
    }

    QWidget window;
    std::unique_ptr<FunctionConfigWidget> page; // in the window
    bool isSetUp = false;
};

inline PageFixture::Prepare withKeys(const QMap<key_id_t, int> &keys)
{
    return [keys](EditorFixture &fixture) {
        for (auto key = keys.cbegin(); key != keys.cend(); ++key)
            fixture.store.createKeyAttribute(key.key(), *key);
    };
}

/// Layout 2 with @p keyCount keys of one physical key each.
inline void writeLayout(int layoutId, int keyCount)
{
    QSettings file(vorlindesk::Paths::customLayoutIni(), QSettings::IniFormat);
    file.beginGroup("layout_%1"_s.arg(layoutId));
    file.setValue("num"_s, QString::number(keyCount)); // a text, as whoever reads the file finds it
    file.setValue("name"_s, "Desk %1"_s.arg(layoutId));
    for (int key = 1; key <= keyCount; ++key)
        file.setValue("%1_bitmap"_s.arg(key), QString::number(1 << (key - 1)));
}

inline void writeChildPage(int keyId, int layoutId, int pageId)
{
    vorlindesk::SystemSettings::setHomeLayoutEntries({{keyId, layoutId, pageId, 1}});
}
