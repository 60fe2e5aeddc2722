#include "functabframe.h"

#include "base/language.h"
#include "frameiconbutton.h"
#include "ui_common/style.h"

#include <QVBoxLayout>

namespace {

struct Entry
{
    const char *name;
    const char *icon;
    int textId;
};

// The order is that of the pages.
constexpr Entry Entries[] = {
    {"mFuncSetBtn", ":/icon/Button_function_set.png", 7},
    {"mLayoutSetBtn", ":/icon/Panel_button_set.png", 8},
    {"mPictureUploadBtn", ":/icon/Picture_upload.png", 9},
    {"mSystemSetBtn", ":/icon/IMPORT_OUTPORT.png", 10},
};

} // namespace

FuncTabFrame::FuncTabFrame(const vorlindesk::LanguageManager &language, QWidget *parent)
    : QFrame(parent)
    , mLanguage(language)
{
    setObjectName(QStringLiteral("functabframe"));
    setStyleSheet(QString::fromLatin1(Style::FuncTabFrame));
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(10, 10, 10, 6);
    layout->setSpacing(6);
    for (const Entry &entry : Entries) {
        auto *button = new FrameIconButton(QLatin1String(entry.name), QLatin1String(entry.icon), this);
        connect(button, &FrameIconButton::clicked, this, &FuncTabFrame::onFrameClicked);
        layout->addWidget(button);
        mButtons.append(button);
    }
    setFocusProxy(mButtons.first());
    showSelected(0);
    retranslate();
}

void FuncTabFrame::onFrameClicked()
{
    const int index = mButtons.indexOf(qobject_cast<FrameIconButton *>(sender()));
    if (index < 0)
        return;
    showSelected(index);
    emit sigSelected(index);
}

void FuncTabFrame::showSelected(int index)
{
    for (int i = 0; i < mButtons.size(); ++i)
        mButtons.at(i)->setSelected(i == index);
}

void FuncTabFrame::retranslate()
{
    for (int i = 0; i < mButtons.size(); ++i)
        mButtons.at(i)->setText(mLanguage.Text(Entries[i].textId));
}
