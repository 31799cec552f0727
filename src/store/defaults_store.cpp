#include "store/defaults_store.h"

#include <QtCore/QFileInfo>
#include <QtCore/QSettings>
#include <QtCore/QStandardPaths>

#include <algorithm>
#include <array>
#include <utility>

namespace zelvor {

using namespace Qt::Literals::StringLiterals;

namespace {

const QString businessesKey = u"businesses"_s;
const QString nameKey = u"name"_s;
const QString pathKey = u"path"_s;
const QString defaultBusinessKey = u"defaultBusiness"_s;
const QString showUpdateWindowKey = u"showUpdateWindow"_s;
const QString crashReportsKey = u"crashReports"_s;

constexpr std::array<std::pair<CrashReportConsent, QStringView>, 3> consentWords{
    {{CrashReportConsent::Ask, u"ask"},
     {CrashReportConsent::Always, u"always"},
     {CrashReportConsent::Never, u"never"}}};

// A word that nobody knows is no consent.
CrashReportConsent consentFromWord(const QString& word)
{
    const auto* known = std::ranges::find(consentWords, word, [](const auto& entry) { return entry.second; });
    return known == consentWords.end() ? CrashReportConsent::Ask : known->first;
}

QString consentWord(CrashReportConsent consent)
{
    return std::ranges::find(consentWords, consent, [](const auto& entry) { return entry.first; })
        ->second.toString();
}

// Names and paths are values of numbered entries: as values they may hold any character, as keys they
// may not.
QMap<QString, QString> readBusinesses(QSettings& settings)
{
    QMap<QString, QString> result;
    const int count = settings.beginReadArray(businessesKey);
    for (int i = 0; i < count; ++i) {
        settings.setArrayIndex(i);
        result.insert(settings.value(nameKey).toString(), settings.value(pathKey).toString());
    }
    settings.endArray();
    return result;
}

void writeBusinesses(QSettings& settings, const QMap<QString, QString>& businesses)
{
    settings.remove(businessesKey);
    settings.beginWriteArray(businessesKey, static_cast<int>(businesses.size()));
    int index = 0;
    for (const auto& [name, path] : businesses.asKeyValueRange()) {
        settings.setArrayIndex(index++);
        settings.setValue(nameKey, name);
        settings.setValue(pathKey, path);
    }
    settings.endArray();
}

} // namespace

class DefaultsStore::Impl {
public:
    explicit Impl(QString path) : filePath(std::move(path)) {}

    void load()
    {
        if (loaded)
            return;
        loaded = true;
        QSettings settings(filePath, QSettings::IniFormat);
        businesses = readBusinesses(settings);
        if (settings.contains(defaultBusinessKey))
            defaultBusiness = settings.value(defaultBusinessKey).toString();
        showUpdateWindow = settings.value(showUpdateWindowKey, true).toBool();
        crashReportConsent = consentFromWord(settings.value(crashReportsKey).toString());
    }

    const QString filePath;
    bool loaded = false;
    QMap<QString, QString> businesses;
    std::optional<QString> defaultBusiness;
    bool showUpdateWindow = true;
    CrashReportConsent crashReportConsent = CrashReportConsent::Ask;
    // Only what was set here is written: another program may have set the rest meanwhile.
    bool businessesSet = false;
    bool defaultBusinessSet = false;
    bool showUpdateWindowSet = false;
    bool crashReportConsentSet = false;
};

DefaultsStore::DefaultsStore()
    : DefaultsStore(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
                    u"/Zelvor/Zelvor.conf"_s)
{}

DefaultsStore::DefaultsStore(QString filePath) : m_impl(std::make_unique<Impl>(std::move(filePath))) {}

DefaultsStore::~DefaultsStore() = default;

QMap<QString, QString> DefaultsStore::businesses() const
{
    m_impl->load();
    return m_impl->businesses;
}

void DefaultsStore::setBusinesses(const QMap<QString, QString>& businesses)
{
    m_impl->load();
    m_impl->businesses = businesses;
    m_impl->businessesSet = true;
}

std::optional<QString> DefaultsStore::defaultBusiness() const
{
    m_impl->load();
    return m_impl->defaultBusiness;
}

void DefaultsStore::setDefaultBusiness(const QString& key)
{
    m_impl->load();
    m_impl->defaultBusiness = key;
    m_impl->defaultBusinessSet = true;
}

void DefaultsStore::removeDefaultBusiness()
{
    m_impl->load();
    m_impl->defaultBusiness.reset();
    m_impl->defaultBusinessSet = true;
}

bool DefaultsStore::showUpdateWindow() const
{
    m_impl->load();
    return m_impl->showUpdateWindow;
}

void DefaultsStore::setShowUpdateWindow(bool show)
{
    m_impl->load();
    m_impl->showUpdateWindow = show;
    m_impl->showUpdateWindowSet = true;
}

CrashReportConsent DefaultsStore::crashReportConsent() const
{
    m_impl->load();
    return m_impl->crashReportConsent;
}

void DefaultsStore::setCrashReportConsent(CrashReportConsent consent)
{
    m_impl->load();
    m_impl->crashReportConsent = consent;
    m_impl->crashReportConsentSet = true;
}

QString DefaultsStore::folder() const
{
    return QFileInfo(m_impl->filePath).absolutePath();
}

bool DefaultsStore::synchronize()
{
    m_impl->load();
    QSettings settings(m_impl->filePath, QSettings::IniFormat);
    if (m_impl->businessesSet)
        writeBusinesses(settings, m_impl->businesses);
    if (m_impl->defaultBusinessSet && m_impl->defaultBusiness)
        settings.setValue(defaultBusinessKey, *m_impl->defaultBusiness);
    else if (m_impl->defaultBusinessSet)
        settings.remove(defaultBusinessKey);
    if (m_impl->showUpdateWindowSet)
        settings.setValue(showUpdateWindowKey, m_impl->showUpdateWindow);
    if (m_impl->crashReportConsentSet)
        settings.setValue(crashReportsKey, consentWord(m_impl->crashReportConsent));
    settings.sync();
    if (settings.status() != QSettings::NoError)
        return false;
    m_impl->businessesSet = m_impl->defaultBusinessSet = false;
    m_impl->showUpdateWindowSet = m_impl->crashReportConsentSet = false;
    return true;
}

} // namespace zelvor
