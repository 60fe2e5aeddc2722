/// The group of the settings page in which backups are made, looked at and imported.
#pragma once

#include "backups.h"

#include <QFrame>
#include <QVector>

class QLabel;
class QLineEdit;
class QProgressBar;
class QPushButton;
class QTreeWidget;

namespace vorlindesk {
class IDesktop;
class LanguageManager;
} // namespace vorlindesk

class BackupPanel : public QFrame
{
    Q_OBJECT
public:
    /// All but the parent outlive it.
    BackupPanel(Backups &backups, vorlindesk::LanguageManager &language, vorlindesk::IDesktop &desktop,
                QWidget *parent);

protected:
    void showEvent(QShowEvent *event) override; ///< lists anew

private:
    QWidget *folderRow();
    QWidget *nameRow();
    QWidget *importRow();
    QWidget *progressRow();
    void setUpList();
    QPushButton *button(const char *name, QWidget *parent);
    void connectBackups();
    void retranslate();
    void fillList();
    void showChosen();
    void showActivity();
    void say(const QString &text, bool isProblem = false);
    QString chosen() const; ///< folder of the backup; empty: none
    QString activityText() const;
    void allow(QPushButton *button, const QString &obstacle);
    void chooseFolder();
    void openFolder();
    void removeChosen();
    void preview(bool toPanel);
    void onOpened(const Backups::Opened &opened);
    void onCreated(const vorlinmodel::Profiles::BackupResult &result);

    Backups &mBackups;
    vorlindesk::LanguageManager &mLanguage;
    vorlindesk::IDesktop &mDesktop;
    bool mToPanel = false; ///< what the preview that is opened is for
    QString mAwaited;      ///< folder that becomes the chosen one when it is listed
    QString mLeftOut;      ///< of the last import
    QLabel *mpCaption;
    QLabel *mpFolder;
    QPushButton *mpChoose = nullptr;
    QPushButton *mpOpen = nullptr;
    QTreeWidget *mpList;
    QLabel *mpDetails;
    QLabel *mpNameCaption = nullptr;
    QLineEdit *mpName = nullptr;
    QPushButton *mpCreate = nullptr;
    QPushButton *mpToHost = nullptr;
    QPushButton *mpToPanel = nullptr;
    QPushButton *mpDelete = nullptr;
    QLabel *mpActivity = nullptr;
    QProgressBar *mpProgress = nullptr;
    QPushButton *mpCancel = nullptr;
    QLabel *mpMessage;
};
