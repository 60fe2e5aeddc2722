#include "stepdata.h"

#include "stepmodel.h"
#include "vorlinmimedata.h"

#include <QDataStream>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using vorlinmodel::MultiActionStore;

StepData::StepData(const StepModel &model, const QVector<int> &rows)
    : mModel(model)
    , mRows(rows)
{
    QJsonArray array;
    for (const vorlinmodel::MultiAction &step : model.steps(rows))
        array.append(MultiActionStore::toJson(step));
    setData(QString::fromLatin1(Format), QJsonDocument(array).toJson(QJsonDocument::Compact));
}

StepContent::Steps stepsOf(const QMimeData *data)
{
    if (!data)
        return {};
    QString error;
    StepContent::Steps steps;
    for (const QJsonValue &value :
         QJsonDocument::fromJson(data->data(QString::fromLatin1(StepData::Format))).array())
        steps.append(MultiActionStore::actionFromJson(value.toObject(), error));
    return error.isEmpty() ? steps : StepContent::Steps{};
}

int droppedFunction(const QMimeData &data)
{
    const QString format = QString::fromLatin1(DragFormat::FunctionId);
    if (!data.hasFormat(format))
        return 0;
    QDataStream stream(data.data(format));
    qint32 fid = 0;
    stream >> fid;
    return stream.status() == QDataStream::Ok && StepContent::canBeStep(fid) ? fid : 0;
}
