/// Where the person chooses the background picture of a layout.
#pragma once

#include "layoutdraft.h"

#include <QStringList>
#include <QWidget>
#include <memory>

class PagesMenu;
class QCheckBox;
class QImage;
class QLabel;
class QPushButton;
class QStackedWidget;
class QTemporaryDir;
class QToolButton;

namespace vorlindesk {
class LanguageManager;
}
namespace vorlinmodel {
class ConversionQueue;
struct ConversionResult;
} // namespace vorlinmodel

class BackgroundBox : public QWidget
{
    Q_OBJECT
public:
    /// @p language outlives it.
    BackgroundBox(const vorlindesk::LanguageManager &language, QWidget *parent);
    ~BackgroundBox() override;

    void showValue(const LayoutDraft::Value &value, bool editable);
    bool isBusy() const { return mJob != 0; } ///< a picture is being converted
    void forget(); ///< another layout is in view: ends a conversion, and removes what the others have made
    void retranslate();

signals:
    void sigPicture(const QString &path); ///< at panelPixelSize(); the file stays until forget()
    void sigRemoved();
    void sigPages(const QVector<int> &pages);
    void sigPagesWithKeys();
    void sigEmptyKeysToo(bool on);
    void sigBusyChanged();
    void sigProblem(const QString &text); ///< for the person

private:
    void build();
    void connectParts();
    void choosePicture();
    void convert(const QImage &picture);
    void onConverted(int id, const vorlinmodel::ConversionResult &result);
    void setJob(int id);
    void showParts();

    const vorlindesk::LanguageManager &mLanguage;
    QString mFolder; ///< where the person last chose a picture
    QLabel *mpCaption;
    QPushButton *mpChoose;
    QToolButton *mpRemove;
    QPushButton *mpPages;
    PagesMenu *mpPagesMenu;
    QCheckBox *mpEmptyKeys;
    QWidget *mpProgress;
    QPushButton *mpCancel;
    QStackedWidget *mpOptions;                       ///< check box, or progress
    std::unique_ptr<QTemporaryDir> mpWork;           ///< what is handed to the converter
    vorlinmodel::ConversionQueue *mpQueue = nullptr; ///< made when it is needed
    int mJob = 0;                                    ///< 0: none
    QStringList mMade;
    QVector<int> mShownPages;
    bool mHasPicture = false;
    bool mIsEditable = false;
};
