/// The steps of one key while they are edited.
#pragma once

#include "stepcontent.h"

#include <QAbstractListModel>
#include <QTimer>
#include <functional>

/// Keeps a history of its own: saving, which is one step of the editor's history, may be a long way off.
class StepModel : public QAbstractListModel
{
    Q_OBJECT
public:
    using Steps = StepContent::Steps;
    enum Role { FidRole = Qt::UserRole, RunStateRole };
    enum class RunState { None, Running, Done, Failed, Skipped }; ///< in a test of the steps
    Q_ENUM(RunState)

    static constexpr int HistoryLimit = 500;
    static constexpr int TypingRest = 1000; ///< ms, after which typing on is a new step of the history

    /// @p nameOf gives a function's name in the current language.
    explicit StepModel(std::function<QString(int fid)> nameOf, QObject *parent = nullptr);

    void load(const Steps &steps); ///< they count as saved; the history is empty
    void setSaved(const Steps &steps) { mSaved = steps; }
    bool isModified() const { return mSteps != mSaved; }
    const Steps &steps() const { return mSteps; }
    Steps steps(const QVector<int> &rows) const;

    // Edits. Rows that do not exist are passed over.
    void insert(int before, const Steps &steps);
    void remove(const QVector<int> &rows);
    /// Brings @p rows, in their order, in front of the row @p before. @return where the first of them is now.
    int move(const QVector<int> &rows, int before);
    void setContent(int row, const QString &content);
    void setDelay(int row, int delay); ///< ms, bounded to 0 to 65535

    bool canUndo() const { return mPosition > 0; }
    bool canRedo() const { return mPosition + 1 < mHistory.size(); }
    void undo();
    void redo();

    void setRunState(int row, RunState state);
    void clearRunStates();
    void retranslate();

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    QMimeData *mimeData(const QModelIndexList &indexes) const override; ///< the caller's; see StepData

signals:
    void changed(); ///< the steps are others now

private:
    void change(const Steps &steps, int typedRow = -1);
    void record(const Steps &steps, int typedRow);
    void show(const Steps &steps);
    bool holds(int row) const { return row >= 0 && row < mSteps.size(); }

    std::function<QString(int fid)> mNameOf;
    Steps mSteps;
    Steps mSaved;
    QVector<Steps> mHistory{{}}; ///< what undo and redo walk along; the steps of now are at mPosition
    int mPosition = 0;
    int mTypedRow = -1; ///< the last step of the history is typing in this row
    QTimer mTypingTimer;
    QVector<RunState> mRunStates; ///< by row; empty when nothing was tested
};
