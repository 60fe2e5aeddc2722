#include "settingsswitches.h"

#include "base/systemsettings.h"
#include "settingscard.h"
#include "ui_common/messagebox.h"

#include <QCheckBox>
#include <QLabel>
#include <QVBoxLayout>
#include <iterator>

namespace SystemSettings = vorlindesk::SystemSettings;
namespace SettingsKey = vorlindesk::SettingsKey;

namespace {

struct Switch
{
    const char *key; ///< also the object name
    bool (*value)();
    void (*set)(bool on);
    bool isReadAtStart; ///< and at no other time
};

constexpr Switch Switches[] = {
    {SettingsKey::AutoSyncEnable, SystemSettings::autoSyncEnable, SystemSettings::setAutoSyncEnable, true},
    {SettingsKey::PrintBufEnable, SystemSettings::printBufEnable, SystemSettings::setPrintBufEnable, true},
    {SettingsKey::LoadCustomLayout, SystemSettings::loadCustomLayout, SystemSettings::setLoadCustomLayout,
     false},
};

constexpr int IndicatorWidth = 24; // pixels; texts stand below the text of their box
constexpr char NoticeStyle[] = "color: rgb(255, 190, 90);font-size: 13px;";

} // namespace

SettingsSwitches::SettingsSwitches(QWidget *parent)
    : QWidget(parent)
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(4);
    for (int index = 0; index < int(std::size(Switches)); ++index)
        addRow(index);
    refresh();
}

void SettingsSwitches::addRow(int index)
{
    Row row{new QCheckBox(this), explanationLabel(this), explanationLabel(this), Switches[index].value()};
    row.box->setObjectName(QLatin1String(Switches[index].key));
    row.notice->setObjectName(QLatin1String(Switches[index].key) + QStringLiteral("Notice"));
    row.notice->setStyleSheet(QString::fromLatin1(NoticeStyle));
    row.notice->hide();
    auto *column = static_cast<QVBoxLayout *>(layout());
    if (index > 0)
        column->addSpacing(8);
    column->addWidget(row.box);
    for (QLabel *label : {row.explanation, row.notice}) {
        label->setContentsMargins(IndicatorWidth, 0, 0, 0);
        column->addWidget(label);
    }
    connect(row.box, &QCheckBox::clicked, this, [this, index](bool on) { change(index, on); });
    mRows.append(row);
}

void SettingsSwitches::change(int index, bool on)
{
    Switches[index].set(on);
    if (Switches[index].value() != on)
        MessageBox::warn(window(), tr("The setting could not be saved. Is the disk full?"));
    refresh();
}

void SettingsSwitches::refresh()
{
    for (int index = 0; index < mRows.size(); ++index) {
        mRows.at(index).box->setChecked(Switches[index].value());
        showNotice(index);
    }
}

void SettingsSwitches::showNotice(int index)
{
    const Row &row = mRows.at(index);
    row.notice->setVisible(Switches[index].isReadAtStart && row.box->isChecked() != row.atStart);
}

void SettingsSwitches::retranslate()
{
    const QString texts[][2] = {
        {tr("Synchronise by itself"),
         tr("When the program starts, it looks for the panel and reads its configuration. Off: the panel is "
            "read only on request.")},
        {tr("Write what is sent into the log"),
         tr("Every report to the panel is written into the log, byte for byte. The log grows fast.")},
        {tr("Custom layouts are still to be loaded"),
         tr("A mark that the panel has yet to send its layouts. The program takes it away once they have "
            "come; nothing else depends on it.")},
    };
    for (int index = 0; index < mRows.size(); ++index) {
        mRows.at(index).box->setText(texts[index][0]);
        mRows.at(index).explanation->setText(texts[index][1]);
        mRows.at(index).notice->setText(tr("Takes effect when the program is started again."));
    }
}
