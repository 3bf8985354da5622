#include "platform/qt/qt_settings.h"

#include <QSettings>

namespace borvik {

namespace {

QSettings storeOf(const std::string& application) {
    return {QSettings::IniFormat, QSettings::UserScope, QStringLiteral("Borvik"), QString::fromStdString(application)};
}

QString path(const std::string& section, const std::string& key) {
    return QString::fromStdString(section) + QLatin1Char('/') + QString::fromStdString(key);
}

}  // namespace

std::string QtSettings::get(const std::string& application, const std::string& section, const std::string& key,
                            const std::string& otherwise) const {
    return storeOf(application).value(path(section, key), QString::fromStdString(otherwise)).toString().toStdString();
}

void QtSettings::save(const std::string& application, const std::string& section, const std::string& key,
                      const std::string& text) {
    storeOf(application).setValue(path(section, key), QString::fromStdString(text));
}

std::vector<std::pair<std::string, std::string>> QtSettings::getAll(const std::string& application,
                                                                    const std::string& section) const {
    QSettings store = storeOf(application);
    store.beginGroup(QString::fromStdString(section));
    QStringList keys = store.childKeys();
    keys.sort();
    std::vector<std::pair<std::string, std::string>> all;
    for (const QString& key : keys) all.emplace_back(key.toStdString(), store.value(key).toString().toStdString());
    return all;
}

}  // namespace borvik
