/// The main area of the window: the panel as it was read, page by page.
#pragma once

#include <QFrame>
#include <QMap>

class PageView;
class QLabel;
class QPushButton;

namespace vorlindesk {
class IFrameworkContext;
}
namespace vorlinmodel {
class IFunctionManager;
}

class MainFrame : public QFrame
{
    Q_OBJECT
public:
    /// What the program is doing, for the line that says so.
    enum class Activity { Looking, Reading, Connected, ReadIncomplete };

    MainFrame(vorlindesk::IFrameworkContext &context, vorlinmodel::IFunctionManager &store, QWidget *parent);

    /// Shows a page; the panel is not told.
    void showPage(int layoutId, int pageId);
    void refreshKeys(); ///< of the page in view
    int curLayoutId() const { return mCurLayoutId; }
    int curPageId() const { return mCurPageId; }

    /// @p received and @p announced count keys, and matter only while reading; 0 of 0: not known yet.
    void showActivity(Activity activity, int received = 0, int announced = 0);

    /// Values that the panel reported, by function code 13, 16, 17 or 18.
    void showDeviceValue(int code, const QString &value);

    /// Something is under way that a version request must not disturb.
    bool isTransferInProgress() const;
    void retranslate();

private:
    void turnPage(int step);
    QString activityText() const;

    vorlindesk::IFrameworkContext &mContext;
    int mCurLayoutId = 1;
    int mCurPageId = 1;
    Activity mActivity = Activity::Looking;
    int mReceived = 0;
    int mAnnounced = 0;
    QMap<int, QString> mDeviceValues; ///< by function code
    QLabel *mpActivity;
    QLabel *mpDeviceValues;
    PageView *mpPageView;
    QPushButton *mpPrevPage;
    QPushButton *mpNextPage;
    QLabel *mpPage;
};
