/// Shows what a backup holds and what would change, before it takes the place of the configuration.
#pragma once

#include "backups.h"

#include <QDialog>

class QCheckBox;
class QLabel;
class QPushButton;
class QTreeWidget;

namespace vorlindesk {
class LanguageManager;
}

class RestorePreviewDialog : public QDialog
{
    Q_OBJECT
public:
    /// Shown by open(); deletes itself. @p toPanel: the panel is to get all of it.
    RestorePreviewDialog(const Backups::Opened &opened, bool toPanel, bool isConnected,
                         const vorlindesk::LanguageManager &language, QWidget *parent);

signals:
    void sigImport(bool takesTheRest); ///< the person wants it

private:
    QTreeWidget *changes();
    void addPages(QTreeWidget &tree);
    void addGroup(QTreeWidget &tree, const QString &caption, const QStringList &lines, bool isBad);
    QString consequences(bool isConnected) const;
    void checkPossible();
    void import();

    const Backups::Opened mOpened;
    const bool mToPanel;
    const vorlindesk::LanguageManager &mLanguage;
    QCheckBox *mpRest = nullptr; ///< null: nothing is damaged
    QPushButton *mpImport;
};
