/// The switches of "system.ini", with what each does.
#pragma once

#include <QVector>
#include <QWidget>

class QCheckBox;
class QLabel;

/// A switch is written at once.
class SettingsSwitches : public QWidget
{
    Q_OBJECT
public:
    explicit SettingsSwitches(QWidget *parent);

    void refresh(); ///< the file may have changed
    void retranslate();

private:
    struct Row
    {
        QCheckBox *box;
        QLabel *explanation;
        QLabel *notice; ///< that the change takes effect later
        bool atStart;   ///< what the program has started with, as far as known
    };

    void addRow(int index);
    void change(int index, bool on);
    void showNotice(int index);

    QVector<Row> mRows;
};
