// How the steps get out of the editor and back: loading, saving, leaving, testing.
#include "multiactionwidget.h"

#include "base/iframeworkcontext.h"
#include "base/language.h"
#include "base/paths.h"
#include "editorcontext.h"
#include "model/functionids.h"
#include "model/ifunctionmanager.h"
#include "steplistview.h"
#include "steprunner.h"
#include "ui_common/messagebox.h"

#include <QFile>
#include <QLabel>

using vorlinmodel::key_id_t;
using vorlinmodel::multiActionStore;

namespace {

constexpr int SaveTextId = 66;
constexpr int MostFaultsNamed = 8; // a box has to fit the screen

std::optional<StepContent::Steps> storedSteps(const key_id_t &key)
{
    return multiActionStore().findActions(key.lid, key.pageid, key.kid);
}

QString fileName()
{
    return QFileInfo(vorlindesk::Paths::multiActionsJson()).fileName();
}

/// A name beside the file that is not taken.
QString nameAside()
{
    const QString path = vorlindesk::Paths::multiActionsJson();
    QString aside = path + QStringLiteral(".damaged");
    for (int number = 2; QFile::exists(aside); ++number)
        aside = path + QStringLiteral(".damaged") + QString::number(number);
    return aside;
}

} // namespace

void MultiActionWidget::load()
{
    mTestText.clear();
    const auto steps = storedSteps(mKey);
    mSteps.load(steps.value_or(StepModel::Steps{}));
    if (!steps)
        MessageBox::warn(this, tr("The saved steps cannot be read: the file %1 is damaged. "
                                  "It stays as it is until you save.")
                                   .arg(fileName()));
}

/// Undo, a read of the panel, or an edit of another key.
void MultiActionWidget::onKeysChanged(const QVector<key_id_t> &keys)
{
    if (isHidden() || !keys.contains(mKey))
        return;
    showTitle();
    const bool modified = isModified();
    if (!hasFunction()) {
        if (!modified)
            emit sigBtnReturnClicked(mKey, mMainFid);
        return;
    }
    const auto steps = storedSteps(mKey);
    if (!steps)
        return;
    if (modified)
        mSteps.setSaved(*steps); // the person's own steps stay; now they differ from these
    else if (*steps != mSteps.steps())
        mSteps.load(*steps);
    showState();
}

bool MultiActionWidget::hasFunction() const
{
    const auto record = mContext.edits.store().getKeyAttribute(mKey);
    return record && record->mFId == vorlinmodel::MULTIPLE_ACTIONS_FID;
}

bool MultiActionWidget::save()
{
    if (!isModified())
        return true;
    if (refuses() || !mayWriteFile() || !write())
        return false;
    mSteps.setSaved(mSteps.steps());
    showState();
    return true;
}

/// Nothing is cut on its way to the panel: the person decides what to shorten. @return true when told so.
bool MultiActionWidget::refuses()
{
    QString reason;
    const int bytes = StepContent::listBytes(mSteps.steps());
    if (!hasFunction())
        reason =
            tr("The key does not have multiple actions any more. Undo that first, or discard the steps.");
    else if (const QString named = faults(); !named.isEmpty())
        reason = tr("The steps are not saved. The panel cannot take these:") + named;
    else if (bytes > StepContent::maxListBytes())
        reason = tr("The steps are not saved. Together they need %1 bytes, and the panel takes %2.")
                     .arg(bytes)
                     .arg(StepContent::maxListBytes());
    if (reason.isEmpty())
        return false;
    MessageBox::warn(this, reason);
    return true;
}

QString MultiActionWidget::faults() const
{
    QString text;
    int found = 0;
    for (int row = 0; row < mSteps.rowCount(); ++row) {
        const QString fault = StepContent::fault(mSteps.steps().at(row));
        if (fault.isEmpty() || ++found > MostFaultsNamed)
            continue;
        const QString name = mSteps.data(mSteps.index(row), Qt::DisplayRole).toString();
        text += QStringLiteral("\n%1. %2: %3").arg(QString::number(row + 1), name, fault);
    }
    if (found > MostFaultsNamed)
        text += QLatin1Char('\n') + tr("and %1 more").arg(found - MostFaultsNamed);
    return text;
}

/// A file that cannot be read may hold the steps of other keys: it is put aside, and only when the person
/// agrees.
bool MultiActionWidget::mayWriteFile()
{
    if (storedSteps(mKey))
        return true;
    MessageBox::Question question;
    question.text = tr("The file %1 is damaged. Begin a new one?").arg(fileName());
    question.explanation =
        tr("The steps of the other keys cannot be read from the old one either. It is kept as %1.")
            .arg(QFileInfo(nameAside()).fileName());
    question.buttons = QMessageBox::Yes | QMessageBox::Cancel;
    question.preset = QMessageBox::Cancel;
    if (MessageBox::question(this, question) != QMessageBox::Yes)
        return false;
    if (QFile::rename(vorlindesk::Paths::multiActionsJson(), nameAside()))
        return true;
    MessageBox::warn(this, tr("The damaged file cannot be renamed. The steps are not saved."));
    return false;
}

bool MultiActionWidget::write()
{
    bool written = false;
    QString error;
    mContext.edits.change(tr("Save multiple actions"), {mKey}, [&] {
        written =
            multiActionStore().writeActionsByKeyId(mKey.lid, mKey.pageid, mKey.kid, mSteps.steps(), error);
        if (written)
            mContext.edits.send(mKey, mMainFid, vorlinmodel::AttributeId::MultiActions);
    });
    if (!written)
        MessageBox::warn(this, tr("The steps could not be saved: %1").arg(error));
    return written;
}

bool MultiActionWidget::confirmLeave()
{
    if (!isModified()) {
        mpRunner->stop();
        return true;
    }
    MessageBox::Question question;
    question.text = tr("Save the steps of this key?");
    question.explanation = tr("They have been changed since they were saved.");
    question.buttons = QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel;
    question.preset = QMessageBox::Save;
    question.captions = {{QMessageBox::Save, mContext.framework.languageManager()->Text(SaveTextId)},
                         {QMessageBox::Discard, tr("Discard")},
                         {QMessageBox::Cancel, tr("Cancel")}};
    const QMessageBox::StandardButton answer = MessageBox::question(this, question);
    if (answer == QMessageBox::Save)
        return save();
    if (answer != QMessageBox::Discard)
        return false;
    mSteps.load(storedSteps(mKey).value_or(StepModel::Steps{}));
    return true;
}

void MultiActionWidget::leave()
{
    if (confirmLeave())
        emit sigBtnReturnClicked(mKey, mMainFid);
}

void MultiActionWidget::test()
{
    mSteps.clearRunStates();
    mTestText = tr("The steps are running");
    mpRunner->run(mSteps.steps());
    showState();
}

void MultiActionWidget::onTestState(int row, StepModel::RunState state)
{
    mSteps.setRunState(row, state);
    if (state != StepModel::RunState::Running)
        return;
    mTestText = tr("Step %1 is running").arg(row + 1);
    mpList->scrollTo(mSteps.index(row));
    showState();
}

void MultiActionWidget::onTestFinished(bool whole)
{
    mTestText = whole ? tr("All steps have been run") : tr("The test was stopped");
    showState();
}
