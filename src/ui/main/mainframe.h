/// The main area of the window: one of the four pages.
#pragma once

#include <QFrame>
#include <QMap>

class Backups;
class FunctionConfigWidget;
class LayoutPage;
class PictureUploadPage;
class QPushButton;
class QVBoxLayout;
class SystemSettingsPage;
struct EditorContext;

namespace vorlindesk {
class IDesktop;
}

/// The editor is built by setup(), the other pages when they are first selected. @p context and @p desktop
/// must outlive the frame.
class MainFrame : public QFrame
{
    Q_OBJECT
public:
    /// Their numbers are those of the menu.
    enum Page { FunctionConfiguration, PanelLayout, PictureUpload, SystemSettings };

    MainFrame(EditorContext &context, vorlindesk::IDesktop &desktop, QWidget *parent);

    bool setup(); ///< @return false when the editor cannot be built, which is logged
    /// Brings a page into view, unless the person stays with unsaved steps or the page cannot be built;
    /// sigPageSelected tells which it is then. Other numbers are ignored.
    void select(int index);
    int currentPage() const { return mCurrentPage; }

    FunctionConfigWidget &editor() { return *mpFunctionConfig; } ///< after setup()
    Backups &backups() { return *mpBackups; }
    /// While the panel is read, which overwrites the keys, they cannot be edited; nor while a backup takes
    /// their place.
    void setReading(bool reading);

    /// Asks about what is not saved on the page in view. @return false to stay.
    bool confirmLeave();

    /// Some values are asked for when they are to be seen, which takes a panel.
    void setConnected(bool connected);
    /// Values that the panel reported, by function code: versions (3 and 4), 13, 16, 17 or 18.
    void showDeviceValue(int code, const QString &value);
    QString deviceValue(int code) const { return mDeviceValues.value(code); } ///< empty: not known

    /// A person has chosen a picture or video of the gallery: it goes onto the selected key of the editor, if
    /// that is in view.
    void takeGalleryItem(const QString &picture, const QString &video);

    /// Something is under way that a version request must not disturb.
    bool isTransferInProgress() const;
    void retranslate();

signals:
    void sigPageSelected(int index);
    void sigGalleryChanged(); ///< a picture was added

public slots:
    void slotShowHomeLayout();

private:
    void connectBackups();
    void allowEdits();
    bool build(int index);
    template <class PageWidget>
    bool take(PageWidget *&page, const char *failure);
    bool setupLayoutPage();
    bool setupPictureUploadPage();
    bool setupSystemSettingsPage();
    QWidget *page(int index) const;
    void showCurrentPage();
    void showHomeButton();
    void askForPanelValues();
    void showInEditor(int layoutId);
    void showHomeLayout();
    void chooseHomeLayout(int layoutId);

    EditorContext &mContext;
    vorlindesk::IDesktop &mDesktop;
    int mCurrentPage = FunctionConfiguration;
    bool mConnected = false;
    bool mReading = false;
    QMap<int, QString> mDeviceValues; ///< by function code
    Backups *mpBackups;
    QVBoxLayout *mpLayout;
    QPushButton *mpHomeButton;
    FunctionConfigWidget *mpFunctionConfig = nullptr;
    LayoutPage *mpLayoutPage = nullptr;
    PictureUploadPage *mpPictureUpload = nullptr;
    SystemSettingsPage *mpSystemSettings = nullptr;
};
