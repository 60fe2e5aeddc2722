/// The interface language: text table, translator, and the setting that chooses them.
#pragma once

#include <QObject>
#include <QString>
#include <atomic>

class QTranslator;

namespace vorlindesk {

/// Row of the text table. Only rows that sources refer to by name are listed; any number from 0 to 122 is
/// valid.
enum class TextId {
    SelectAll = 5,
    Delete = 6,
    FunctionConfiguration = 7,
    IpcVersion = 19,
    SoftwareVersion = 20,
    HardwareVersion = 21,
    ReadDeviceConfig = 88,
    ReadFailed = 89,
    PrevPage = 91,
    NextPage = 92,
    ImportFailed = 116,
    ImportVideoFailed = 117,
};

/// One instance for the whole program; used on the user-interface thread. Text() may be called from any
/// thread.
class LanguageManager : public QObject
{
    Q_OBJECT
public:
    static constexpr int TextCount = 123;

    /// @p translator is borrowed and must outlive the manager.
    explicit LanguageManager(QTranslator *translator, QObject *parent = nullptr);

    /// Reads the "language" setting, loads its translation into the translator and installs it, with the
    /// toolkit's own beside it. @return false when the translation of the program cannot be loaded.
    bool Init();

    /// @return entry @p id (0 to 122) in the current language; an empty text for any other id. Any thread.
    QString Text(int id) const;
    QString Text(TextId id) const { return Text(static_cast<int>(id)); }

    /// Keeps the low 8 bits of @p value as the language, stores it in system.ini and loads its translation at
    /// once.
    void setLanguage(int value);
    int language() const;

signals:
    void sigLanguageChanged();

private:
    bool loadTranslation(int language);
    void loadToolkitTranslation(const QString &locale);

    QTranslator *mpTranslator;
    QTranslator *mpToolkitTranslator;
    std::atomic<int> mLanguage = 0;
};

/// The resource of the translation for a language value: ":/translations/zh_s.qm" for 1, "zh_t" for 2, "en"
/// for 0, and "chs" for any other value.
QString translationResource(int language);

/// @return entry @p id (0 to 122) of the text table in @p language, English for any but 0, 1 and 2; an empty
/// text for any other id. Any thread.
QString tableText(int id, int language);

} // namespace vorlindesk
