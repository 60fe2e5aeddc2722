/// The step of the history that replaced the whole configuration.
#pragma once

#include <QString>
#include <QUndoCommand>
#include <memory>

class ConfigurationImport;

/// Outlives the command while its undo or redo is carried out.
struct RestoreStep
{
    QString folder;           ///< backup that leads to the other side of the step
    bool isTakenBack = false; ///< the next undo or redo only takes the last one, which failed, back
};

/// Undo and redo only begin: another thread carries them out, while nothing can be edited.
class RestoreCommand : public QUndoCommand
{
public:
    /// The import has been made already. @p import outlives the command's use.
    RestoreCommand(ConfigurationImport &import, const QString &text, std::shared_ptr<RestoreStep> step);

    void undo() override;
    void redo() override; ///< the first one, which pushing makes, does nothing

private:
    void walk(bool forward);

    ConfigurationImport &mImport;
    const std::shared_ptr<RestoreStep> mpStep;
    bool mIsMade = true;
};
