/// Shows how far an adding to the gallery is, once it takes a while.
#pragma once

#include <QTimer>
#include <QWidget>

class QProgressBar;
class QToolButton;

class GalleryProgress : public QWidget
{
    Q_OBJECT
public:
    explicit GalleryProgress(QWidget *parent);

    void begin(); ///< once for each adding
    void end();
    void showProgress(int done, int total); ///< files
    void retranslate();

signals:
    void sigCancelled();

private:
    QProgressBar *mpBar;
    QToolButton *mpCancel;
    QTimer mTimer; ///< shows it
    int mRunning = 0;
};
