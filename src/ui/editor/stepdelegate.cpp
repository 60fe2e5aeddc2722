#include "stepdelegate.h"

#include "functionlist.h"
#include "stepmodel.h"
#include "steprow.h"
#include "ui_common/style.h"

#include <QIcon>
#include <QPainter>

using RunState = StepModel::RunState;

namespace {

const QColor RowColour(51, 51, 51);
const QColor SelectedColour(38, 66, 87);
const QColor RunningColour(30, 92, 52);
const QColor Faint(150, 150, 150);
const QColor Fault(255, 96, 96);

constexpr int Gap = 2; // around a row: the insertion line has to be seen between two
constexpr int Corner = 4;
constexpr int HandleWidth = 20;
constexpr int NumberWidth = 28;
constexpr QSize IconSize{36, 34}; // the shape of a key
constexpr int NameWidth = 148;
constexpr int Spacing = 8;
constexpr int LeftPart = HandleWidth + NumberWidth + IconSize.width() + NameWidth + 3 * Spacing;
constexpr int MinimumHeight = 54;

/// Six dots, as on everything that can be dragged.
void drawHandle(QPainter &painter, const QRect &area)
{
    painter.setPen(Qt::NoPen);
    painter.setBrush(Faint);
    const QPointF middle = QRectF(area).center();
    for (const qreal y : {-5.0, 0.0, 5.0}) {
        for (const qreal x : {-2.5, 2.5})
            painter.drawEllipse(middle + QPointF(x, y), 1.2, 1.2);
    }
}

QString stateText(RunState state)
{
    switch (state) {
    case RunState::Running:
        return StepDelegate::tr("running");
    case RunState::Done:
        return StepDelegate::tr("done");
    case RunState::Failed:
        return StepDelegate::tr("failed");
    case RunState::Skipped:
        return StepDelegate::tr("skipped: done by the panel");
    default:
        return {};
    }
}

/// Below the name: how the step fared in a test.
void drawState(QPainter &painter, const QRect &area, const QFont &font, RunState state)
{
    QFont small = font;
    small.setPointSizeF(font.pointSizeF() * 0.8);
    painter.setFont(small);
    painter.setPen(state == RunState::Failed ? Fault : Faint);
    const QString text = QFontMetrics(small).elidedText(stateText(state), Qt::ElideRight, area.width());
    painter.drawText(area, Qt::AlignLeft | Qt::AlignVCenter, text);
}

void drawTexts(QPainter &painter, const QRect &area, const QFont &font, const QString &name, RunState state)
{
    constexpr int margin = 5;
    const int half = area.height() / 2;
    painter.setFont(font);
    painter.setPen(Qt::white);
    if (state == RunState::None) {
        painter.drawText(area, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextWordWrap, name);
        return;
    }
    const QString text = QFontMetrics(font).elidedText(name, Qt::ElideRight, area.width());
    painter.drawText(area.adjusted(0, margin, 0, -half), Qt::AlignLeft | Qt::AlignVCenter, text);
    drawState(painter, area.adjusted(0, half, 0, -margin), font, state);
}

void drawBackground(QPainter &painter, const QRect &area, bool selected, RunState state)
{
    const QColor colour = state == RunState::Running ? RunningColour : selected ? SelectedColour : RowColour;
    painter.setBrush(colour);
    painter.setPen(selected ? QPen(QColor(Style::Highlight)) : Qt::NoPen);
    painter.drawRoundedRect(QRectF(area).adjusted(0.5, 0.5, -0.5, -0.5), Corner, Corner);
}

} // namespace

StepDelegate::StepDelegate(StepModel &model, QObject *parent)
    : QStyledItemDelegate(parent)
    , mModel(model)
{}

void StepDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                         const QModelIndex &index) const
{
    const QRect area = option.rect.adjusted(Gap, Gap, -Gap, -Gap);
    const auto state = static_cast<RunState>(index.data(StepModel::RunStateRole).toInt());
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    drawBackground(*painter, area, option.state & QStyle::State_Selected, state);
    QRect part(area.topLeft(), QSize(HandleWidth, area.height()));
    drawHandle(*painter, part);
    part = QRect(part.right() + 1, area.top(), NumberWidth, area.height());
    painter->setFont(option.font);
    painter->setPen(Faint);
    painter->drawText(part, Qt::AlignRight | Qt::AlignVCenter, QString::number(index.row() + 1));
    part = QRect(part.right() + 1 + Spacing, area.top(), IconSize.width(), area.height());
    QRect icon(QPoint(0, 0), IconSize);
    icon.moveCenter(part.center());
    QIcon(functionIcon(index.data(StepModel::FidRole).toInt())).paint(painter, icon);
    part = QRect(part.right() + 1 + Spacing, area.top(), NameWidth, area.height());
    drawTexts(*painter, part, option.font, index.data().toString(), state);
    painter->restore();
}

QSize StepDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &) const
{
    const int twoLines = 2 * option.fontMetrics.lineSpacing(); // of a text step
    return {LeftPart, qMax(MinimumHeight, twoLines + 26)};
}

QWidget *StepDelegate::createEditor(QWidget *parent, const QStyleOptionViewItem &,
                                    const QModelIndex &index) const
{
    auto *row = new StepRow(mModel, index, parent);
    emit rowMade(row);
    return row;
}

void StepDelegate::setEditorData(QWidget *editor, const QModelIndex &) const
{
    static_cast<StepRow *>(editor)->refresh();
}

/// The left part stays the list's own: a press there selects and drags.
void StepDelegate::updateEditorGeometry(QWidget *editor, const QStyleOptionViewItem &option,
                                        const QModelIndex &) const
{
    editor->setGeometry(option.rect.adjusted(Gap + LeftPart, Gap, -Gap, -Gap));
}
