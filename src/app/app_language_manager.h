#pragma once

#include <QObject>
#include <QTranslator>
#include <QVariantList>

#include <functional>
#include <optional>

#include "app/app_language_spec.h"

/// Decides the language of the interface: which translation is installed and which font family suits its script. The
/// languages are data (":/translations/languages.json"); the chosen code is kept in the settings file. On the first run
/// the user is asked through the picker that the start-up code passes in.
///
/// Main thread only. Needs a QApplication.
class AppLanguageManager : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(AppLanguageManager)

public:
    /// Asks the user for a language. Each option is a map with "label" (the language's own name), "code" and
    /// "recommended" (bool: it fits the system's language); `preferredIndex` is the recommended option, else the
    /// manifest's default. Empty when the user gave no answer.
    using Picker = std::function<std::optional<int>(const QVariantList &options, int preferredIndex)>;

    static AppLanguageManager &instance();

    /// How the user is asked on the first run. Without a picker the language that fits the system is used.
    void setPicker(Picker picker);

    /// Loads the manifest, determines the language and applies it. The picker's answer is stored; without an answer the
    /// preferred language is used for this run and the question comes back on the next one. False when the manifest
    /// cannot be read: the program cannot start.
    bool initialize();
    /// Reads and checks the manifest. False, with a warning in the message log, when it is missing or broken.
    bool loadManifest();

    const QList<AppLanguageSpec> &languages() const { return m_manifest.languages; }
    /// The entry for a code, compared in normalised form; empty when there is none.
    std::optional<AppLanguageSpec> languageForSetting(const QString &setting) const;

    /// Changes the language at run time and stores it. If it is the current one, it is only stored: it may have been a
    /// guess so far. False when the code is unknown or its translation cannot be loaded; nothing has changed then.
    bool setLanguage(const QString &setting);
    /// Installs the translation in place of the previous one, stores the code when `keep` is set, applies the font and
    /// emits languageChanged(). False, with a warning, when the translation cannot be loaded; nothing has changed then.
    bool applyLanguage(const AppLanguageSpec &language, bool keep);
    /// Gives the application and every widget the font of the current language, at `pointSize` points when that is
    /// above 0, else at the size in use. A widget that set a font of its own (figures, headings) keeps it.
    void applyCurrentFont(int pointSize);
    /// The first family of the list that the font database knows, in the database's spelling; empty when it knows none.
    QString chooseFontFamily(const QList<QString> &families) const;

    QString currentLanguage() const { return m_current.setting; }
    QString resolvedFontFamily() const { return m_fontFamily; }
    /// The file that stores the chosen language.
    QString settingsPath() const;

signals:
    /// A language was applied: its code. Texts of declarative views and of windows follow this signal.
    void languageChanged(const QString &setting);
    /// The application's font was set, because of a new language or size. Emitted before languageChanged().
    void fontChanged();

private:
    AppLanguageManager() = default;

    void store(const AppLanguageSpec &language) const;

    LanguageManifest m_manifest;
    AppLanguageSpec m_current;
    QString m_fontFamily;
    Picker m_picker;
    QTranslator m_translator;
    QTranslator m_toolkitTranslator;
};
