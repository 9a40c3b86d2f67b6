#include "platform/registry_settings.h"

#include <QSettings>

#include "core/constants.h"

namespace korvet {
namespace {

QString Key(const std::string& key) {
    return QStringLiteral("Settings/") + QString::fromStdString(key);
}

QString Application() {
    return QString::fromUtf8(ProductTitle.data(), ProductTitle.size());
}

}  // namespace

std::optional<std::string> RegistrySettings::Get(const std::string& key) const {
    const QVariant value = QSettings(QStringLiteral("Korvet"), Application()).value(Key(key));
    return value.isValid() ? std::optional(value.toString().toStdString()) : std::nullopt;
}

void RegistrySettings::Set(const std::string& key, const std::string& value) {
    QSettings(QStringLiteral("Korvet"), Application()).setValue(Key(key), QString::fromStdString(value));
}

}  // namespace korvet
