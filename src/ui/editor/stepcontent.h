/// What a step of multiple actions holds, how much of it the panel can take, and what is wrong with it.
#pragma once

#include "model/multiaction.h"

#include <QString>
#include <QStringList>
#include <QVector>

struct EditorContext;

namespace StepContent {

using Steps = QVector<vorlinmodel::MultiAction>;

enum class Kind { None, Path, Address, Text, Combination, Delay };
Kind kindOf(int fid);

constexpr int MaxKeys = 4;       ///< of a combination
constexpr int NewDelay = 500;    ///< ms, of a delay step that was just added
constexpr int MaxDelay = 0xFFFF; ///< ms

vorlinmodel::MultiAction newStep(int fid);
/// Functions that can be put into a list; a list that was made elsewhere may hold others.
bool canBeStep(int fid);

/// Bytes of the content as the panel gets it; -1 for steps whose content has no limit to run into.
int contentBytes(const vorlinmodel::MultiAction &step);
int maxContentBytes();
/// Why the panel cannot take the step as it is, in the person's language; empty when it can.
QString fault(const vorlinmodel::MultiAction &step);

int listBytes(const Steps &steps); ///< of all steps as the panel gets them
int maxListBytes();

/// Names to offer for a combination. "#" is not among them: it stands between the names of a stored
/// combination.
QStringList keyNames();

/// Name of a step's function, "Function n" when there is none with this number.
QString name(const EditorContext &context, int fid);
/// The content on one line, for lists and those who cannot see: line breaks as arrows.
QString oneLine(const vorlinmodel::MultiAction &step);

} // namespace StepContent
