#include "stepmodel.h"

#include "stepdata.h"

#include <algorithm>

using vorlinmodel::MultiAction;

namespace {

QVector<int> ascending(QVector<int> rows)
{
    std::sort(rows.begin(), rows.end());
    rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
    return rows;
}

} // namespace

StepModel::StepModel(std::function<QString(int fid)> nameOf, QObject *parent)
    : QAbstractListModel(parent)
    , mNameOf(std::move(nameOf))
{
    mTypingTimer.setSingleShot(true);
    mTypingTimer.setInterval(TypingRest);
    connect(&mTypingTimer, &QTimer::timeout, this, [this] { mTypedRow = -1; });
}

void StepModel::load(const Steps &steps)
{
    mSaved = steps;
    mHistory = {steps};
    mPosition = 0;
    mTypedRow = -1;
    show(steps);
}

StepModel::Steps StepModel::steps(const QVector<int> &rows) const
{
    Steps result;
    for (const int row : ascending(rows)) {
        if (holds(row))
            result.append(mSteps.at(row));
    }
    return result;
}

void StepModel::insert(int before, const Steps &steps)
{
    const int row = qBound(0, before, int(mSteps.size()));
    change(mSteps.mid(0, row) + steps + mSteps.mid(row));
}

void StepModel::remove(const QVector<int> &rows)
{
    Steps left;
    for (int row = 0; row < mSteps.size(); ++row) {
        if (!rows.contains(row))
            left.append(mSteps.at(row));
    }
    change(left);
}

int StepModel::move(const QVector<int> &rows, int before)
{
    Steps head;
    Steps tail;
    for (int row = 0; row < mSteps.size(); ++row) {
        if (!rows.contains(row))
            (row < before ? head : tail).append(mSteps.at(row));
    }
    change(head + steps(rows) + tail);
    return int(head.size());
}

void StepModel::setContent(int row, const QString &content)
{
    if (!holds(row))
        return;
    Steps steps = mSteps;
    steps[row].url = content;
    change(steps, row);
}

void StepModel::setDelay(int row, int delay)
{
    if (!holds(row))
        return;
    Steps steps = mSteps;
    steps[row].delay = static_cast<quint16>(qBound(0, delay, StepContent::MaxDelay));
    change(steps, row);
}

void StepModel::change(const Steps &steps, int typedRow)
{
    if (steps == mSteps)
        return;
    record(steps, typedRow);
    show(steps);
}

/// Typing in one row is one step of the history until it rests.
void StepModel::record(const Steps &steps, int typedRow)
{
    mHistory.resize(mPosition + 1);
    if (typedRow >= 0 && typedRow == mTypedRow)
        mHistory.removeLast();
    const bool typedBack = !mHistory.isEmpty() && mHistory.last() == steps;
    if (!typedBack)
        mHistory.append(steps);
    if (mHistory.size() > HistoryLimit + 1)
        mHistory.removeFirst();
    mPosition = int(mHistory.size()) - 1;
    mTypedRow = typedBack ? -1 : typedRow;
    mTypingTimer.start();
}

void StepModel::undo()
{
    if (!canUndo())
        return;
    mTypedRow = -1;
    show(mHistory.at(--mPosition));
}

void StepModel::redo()
{
    if (!canRedo())
        return;
    mTypedRow = -1;
    show(mHistory.at(++mPosition));
}

/// Tells the views only what differs, so that scroll position, selection and cursor stay where they are.
void StepModel::show(const Steps &steps)
{
    clearRunStates();
    const int common = int(qMin(mSteps.size(), steps.size()));
    int head = 0;
    while (head < common && mSteps.at(head) == steps.at(head))
        ++head;
    int tail = 0;
    while (tail < common - head && mSteps.at(mSteps.size() - 1 - tail) == steps.at(steps.size() - 1 - tail))
        ++tail;
    const int first = common - tail; // row at which rows come or go; those from head up to it change in place
    const int difference = int(steps.size() - mSteps.size());
    if (difference < 0) {
        beginRemoveRows({}, first, first - difference - 1);
        mSteps = mSteps.mid(0, first) + mSteps.mid(first - difference);
        endRemoveRows();
    } else if (difference > 0) {
        beginInsertRows({}, first, first + difference - 1);
        mSteps = mSteps.mid(0, first) + steps.mid(first, difference) + mSteps.mid(first);
        endInsertRows();
    }
    mSteps = steps;
    const int last = difference == 0 ? first - 1 : int(steps.size()) - 1; // the rows behind are renumbered
    if (head <= last)
        emit dataChanged(index(head), index(last));
    emit changed();
}

void StepModel::setRunState(int row, RunState state)
{
    if (!holds(row))
        return;
    mRunStates.resize(mSteps.size());
    mRunStates[row] = state;
    emit dataChanged(index(row), index(row));
}

void StepModel::clearRunStates()
{
    if (mRunStates.isEmpty())
        return;
    mRunStates.clear();
    retranslate();
}

void StepModel::retranslate()
{
    if (!mSteps.isEmpty())
        emit dataChanged(index(0), index(int(mSteps.size()) - 1));
}

int StepModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(mSteps.size());
}

QVariant StepModel::data(const QModelIndex &index, int role) const
{
    if (!holds(index.row()))
        return {};
    const MultiAction &step = mSteps.at(index.row());
    switch (role) {
    case Qt::DisplayRole:
    case Qt::ToolTipRole:
        return mNameOf(step.fid);
    case Qt::AccessibleTextRole: {
        const QString text = QStringLiteral("%1. %2 %3");
        return text.arg(QString::number(index.row() + 1), mNameOf(step.fid), StepContent::oneLine(step))
            .trimmed();
    }
    case FidRole:
        return int(step.fid);
    case RunStateRole:
        return int(mRunStates.value(index.row(), RunState::None));
    default:
        return {};
    }
}

Qt::ItemFlags StepModel::flags(const QModelIndex &index) const
{
    const Qt::ItemFlags row = Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsDragEnabled;
    return index.isValid() ? row | Qt::ItemNeverHasChildren : Qt::NoItemFlags;
}

QMimeData *StepModel::mimeData(const QModelIndexList &indexes) const
{
    QVector<int> rows;
    for (const QModelIndex &index : indexes)
        rows.append(index.row());
    return std::make_unique<StepData>(*this, ascending(rows)).release();
}
