#include "mainframe.h"

#include "base/iframeworkcontext.h"
#include "base/language.h"
#include "model/keyid.h"
#include "pageview.h"
#include "protocol/iprotocolthread.h"
#include "ui_common/style.h"
#include "wire/functioncode.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

using vorlindesk::TextId;

namespace {

constexpr int FirstPage = 1;

QLabel *label(const char *name, QWidget *parent)
{
    auto *result = new QLabel(parent);
    result->setObjectName(QString::fromLatin1(name));
    result->setTextFormat(Qt::PlainText);
    return result;
}

QPushButton *button(const char *name, QWidget *parent)
{
    auto *result = new QPushButton(parent);
    result->setObjectName(QString::fromLatin1(name));
    return result;
}

} // namespace

MainFrame::MainFrame(vorlindesk::IFrameworkContext &context, vorlinmodel::IFunctionManager &store,
                     QWidget *parent)
    : QFrame(parent)
    , mContext(context)
    , mpActivity(label("activity", this))
    , mpDeviceValues(label("deviceValues", this))
    , mpPageView(new PageView(store, this))
    , mpPrevPage(button("prevPage", this))
    , mpNextPage(button("nextPage", this))
    , mpPage(label("page", this))
{
    setObjectName(QStringLiteral("mainframe"));
    setStyleSheet(QString::fromLatin1(Style::MainFrame) + QString::fromLatin1(Style::Button));
    connect(mpPrevPage, &QPushButton::clicked, this, [this] { turnPage(-1); });
    connect(mpNextPage, &QPushButton::clicked, this, [this] { turnPage(1); });

    auto *state = new QHBoxLayout;
    state->addWidget(mpActivity);
    state->addStretch();
    state->addWidget(mpDeviceValues);
    auto *pages = new QHBoxLayout;
    pages->setSpacing(20);
    pages->addStretch();
    pages->addWidget(mpPrevPage);
    pages->addWidget(mpPage);
    pages->addWidget(mpNextPage);
    pages->addStretch();
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(24, 16, 24, 16);
    layout->setSpacing(16);
    layout->addLayout(state);
    layout->addWidget(mpPageView, 1);
    layout->addLayout(pages);
    showPage(mCurLayoutId, mCurPageId);
    retranslate();
}

void MainFrame::showPage(int layoutId, int pageId)
{
    mCurLayoutId = layoutId;
    mCurPageId = pageId;
    mpPage->setText(QStringLiteral("%1/%2").arg(pageId).arg(vorlinmodel::MaxPage));
    mpPrevPage->setEnabled(pageId > FirstPage);
    mpNextPage->setEnabled(pageId < vorlinmodel::MaxPage);
    refreshKeys();
}

void MainFrame::refreshKeys()
{
    mpPageView->showPage(mCurLayoutId, mCurPageId);
}

void MainFrame::turnPage(int step)
{
    showPage(mCurLayoutId, qBound(FirstPage, mCurPageId + step, vorlinmodel::MaxPage));
    mContext.sendRequest(vorlinmodel::RequestKind::MD_FUNCTION_CODE_SELECT_PAGE, mCurLayoutId, mCurPageId);
}

void MainFrame::showActivity(Activity activity, int received, int announced)
{
    mActivity = activity;
    mReceived = received;
    mAnnounced = announced;
    mpActivity->setText(activityText());
}

QString MainFrame::activityText() const
{
    switch (mActivity) {
    case Activity::Looking:
        return tr("Looking for the panel...");
    case Activity::Reading:
        if (mAnnounced == 0)
            return tr("Reading the configuration...");
        return tr("Reading the configuration... %1 of %2 keys").arg(mReceived).arg(mAnnounced);
    case Activity::ReadIncomplete:
        return tr("Connected. The configuration was not read to its end.");
    case Activity::Connected:
        break;
    }
    return tr("Connected");
}

void MainFrame::showDeviceValue(int code, const QString &value)
{
    mDeviceValues.insert(code, value);
    retranslate();
}

bool MainFrame::isTransferInProgress() const
{
    const auto *thread = mContext.protocolThread();
    return thread && thread->isUpgrading();
}

void MainFrame::retranslate()
{
    const auto *language = mContext.languageManager();
    mpPrevPage->setText(language->Text(TextId::PrevPage));
    mpNextPage->setText(language->Text(TextId::NextPage));
    mpActivity->setText(activityText());

    const QMap<FunctionCode, QString> captions{
        {FunctionCode::MD_FUNCTION_CODE_CUSTOMLAYOUT_SET, tr("Custom layout: %1")},
        {FunctionCode::MD_FUNCTION_CODE_LCD_LIGHT, tr("Brightness: %1")},
        {FunctionCode::MD_FUNCTION_CODE_HOME_LAYOUT, tr("Home layout: %1")},
        {FunctionCode::MD_FUNCTION_CODE_SYSTEM_TYPE, tr("System type: %1")},
    };
    QStringList values;
    for (auto value = mDeviceValues.cbegin(); value != mDeviceValues.cend(); ++value) {
        const auto caption = captions.find(static_cast<FunctionCode>(value.key()));
        if (caption != captions.end())
            values.append(caption->arg(value.value()));
    }
    mpDeviceValues->setText(values.join(QStringLiteral("   ")));
}
