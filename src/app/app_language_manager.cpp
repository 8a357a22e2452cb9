#include "app/app_language_manager.h"

#include <QApplication>
#include <QDebug>
#include <QFile>
#include <QLocale>
#include <QSettings>
#include <QWidget>

#include "app/application_fonts.h"
#include "app/settings_keys.h"

namespace {

constexpr QLatin1String kManifestPath(":/translations/languages.json");

// Marks widgets whose font comes from here, as opposed to those that chose their own.
constexpr char kFollowsLanguage[] = "kvFontFollowsLanguage";

} // namespace

AppLanguageManager &AppLanguageManager::instance()
{
    static AppLanguageManager manager;
    return manager;
}

void AppLanguageManager::setPicker(Picker picker)
{
    m_picker = std::move(picker);
}

QString AppLanguageManager::settingsPath() const
{
    return settings_keys::kFile;
}

bool AppLanguageManager::loadManifest()
{
    QFile file(kManifestPath);
    QString error;
    if (!file.open(QIODevice::ReadOnly))
        error = file.errorString();
    else
        m_manifest = language_manifest::parse(file.readAll(), &error);
    if (!error.isEmpty())
        qWarning().noquote() << "Language manifest cannot be used:" << error;
    return error.isEmpty();
}

std::optional<AppLanguageSpec> AppLanguageManager::languageForSetting(const QString &setting) const
{
    const AppLanguageSpec *language = m_manifest.find(setting);
    return language != nullptr ? std::optional(*language) : std::nullopt;
}

bool AppLanguageManager::initialize()
{
    if (!loadManifest())
        return false;
    const QSettings settings(settingsPath(), QSettings::IniFormat);
    const std::optional<AppLanguageSpec> stored =
        languageForSetting(settings.value(settings_keys::kLanguage).toString());
    if (stored) {
        applyLanguage(*stored, false);
        return true;
    }

    const QLocale system = QLocale::system();
    const QString recommended = language_manifest::recommendedSetting(system.uiLanguages(), system.name());
    const QString preferred = m_manifest.find(recommended) != nullptr ? recommended : m_manifest.defaultLanguage;
    QVariantList options;
    int preferredIndex = 0;
    for (const AppLanguageSpec &language : languages()) {
        const bool isRecommended = language.setting == recommended;
        if (language.setting == preferred)
            preferredIndex = int(options.size());
        options.append(QVariantMap{{QStringLiteral("label"), language.displayName},
                                   {QStringLiteral("code"), language.setting},
                                   {QStringLiteral("recommended"), isRecommended}});
    }
    const std::optional<int> answer = m_picker ? m_picker(options, preferredIndex) : std::nullopt;
    const bool answered = answer && *answer >= 0 && *answer < languages().size();
    applyLanguage(languages().at(answered ? *answer : preferredIndex), answered);
    return true;
}

bool AppLanguageManager::setLanguage(const QString &setting)
{
    const std::optional<AppLanguageSpec> language = languageForSetting(setting);
    if (!language || language->setting != m_current.setting)
        return language && applyLanguage(*language, true);
    store(*language);
    return true;
}

void AppLanguageManager::store(const AppLanguageSpec &language) const
{
    QSettings(settingsPath(), QSettings::IniFormat).setValue(settings_keys::kLanguage, language.setting);
}

bool AppLanguageManager::applyLanguage(const AppLanguageSpec &language, bool keep)
{
    // Loaded alongside the one in use, which stays if the new one is broken.
    if (QTranslator trial; !trial.load(language.qmResourcePath())) {
        qWarning().noquote() << "Translation cannot be loaded:" << language.qmResourcePath();
        return false;
    }
    QCoreApplication::removeTranslator(&m_translator);
    QCoreApplication::removeTranslator(&m_toolkitTranslator);
    if (QFile::exists(language.toolkitResourcePath()) && m_toolkitTranslator.load(language.toolkitResourcePath()))
        QCoreApplication::installTranslator(&m_toolkitTranslator);
    if (m_translator.load(language.qmResourcePath()))
        QCoreApplication::installTranslator(&m_translator);

    m_current = language;
    if (keep)
        store(language);
    applyCurrentFont(0);
    emit languageChanged(language.setting);
    return true;
}

QString AppLanguageManager::chooseFontFamily(const QList<QString> &families) const
{
    return application_fonts::chooseFontFamily(families);
}

void AppLanguageManager::applyCurrentFont(int pointSize)
{
    QFont font = QApplication::font();
    if (pointSize > 0)
        font.setPointSize(pointSize);
    if (!m_current.setting.isEmpty()) {
        m_fontFamily = chooseFontFamily(m_current.fontFamilies);
        QStringList families = font.families().mid(0, 1);
        if (!m_fontFamily.isEmpty())
            families = {m_fontFamily};
        // Han characters are drawn differently in each of the four languages: characters that the family lacks come
        // from the right system font, not from the first font that has them.
        font.setFamilies(families + application_fonts::hanFallback(m_current.setting));
    }
    QApplication::setFont(font);
    for (QWidget *widget : QApplication::allWidgets()) {
        if (widget->testAttribute(Qt::WA_SetFont) && !widget->property(kFollowsLanguage).toBool())
            continue;
        widget->setProperty(kFollowsLanguage, true);
        widget->setFont(font);
        widget->update();
    }
    emit fontChanged();
}
