#include "platform/qt/qt_settings.h"

#include <QDir>
#include <QFileInfo>
#include <QSettings>

namespace borvik {

namespace {

QString fileOf(const QString& application) {
    return QSettings(QSettings::IniFormat, QSettings::UserScope, QStringLiteral("Borvik"), application).fileName();
}

/// The settings of an application; none where a pipe or the like has their place, as reading it may never end.
QSettings storeOf(const std::string& application) {
    const QString name = QString::fromStdString(application);
    // Found beside a file that isn't there: to ask for the name itself would read the file.
    const QFileInfo file(QFileInfo(fileOf(QStringLiteral("-"))).dir(), name + QStringLiteral(".ini"));
    const bool isReadable = !file.exists() || file.isFile();
    return {QSettings::IniFormat, QSettings::UserScope, QStringLiteral("Borvik"),
            isReadable ? name : name + QStringLiteral("-2")};
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
