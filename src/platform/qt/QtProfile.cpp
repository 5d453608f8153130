#include "platform/qt/QtProfile.h"

#include "platform/qt/ProfileKeys.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <utility>

namespace dyeworks {

namespace {

/// A value as it stands in the store: text, or bytes when the value is not valid UTF-8, such as the name of a
/// file that some other program made.
QVariant stored(const std::string& value) {
    const QString asText = QString::fromStdString(value);
    return asText.toStdString() == value ? QVariant(asText) : QVariant(QByteArray::fromStdString(value));
}

std::optional<std::string> valueOf(const QVariant& variant) {
    switch (variant.typeId()) {
    case QMetaType::QString:
        return variant.toString().toStdString();
    case QMetaType::QByteArray:
        return variant.toByteArray().toStdString();
    case QMetaType::QStringList:
        // What stands unquoted in a line that a person wrote: "a, b".
        return variant.toStringList().join(QStringLiteral(", ")).toStdString();
    default:
        return std::nullopt;
    }
}

} // namespace

QtProfile::QtProfile(const std::string& hostPath)
    : store_(hostPath.empty()
                 ? std::make_unique<QSettings>(QSettings::IniFormat, QSettings::UserScope,
                                               QStringLiteral("Quillon"), QStringLiteral("Orrery Dyeworks"))
                 : std::make_unique<QSettings>(QString::fromStdString(hostPath), QSettings::IniFormat)) {
    // Without this, settings of the whole host would show through.
    store_->setFallbacksEnabled(false);
    const QString file = store_->fileName();
    // Sections are read when they are first asked for, and only then is it known.
    static_cast<void>(store_->allKeys());
    if (store_->status() == QSettings::FormatError) {
        const QString copy = file + QStringLiteral(".damaged");
        QFile::remove(copy);
        QFile::copy(file, copy);
        trouble_ = {ProfileTrouble::Kind::Damaged, file.toStdString(), copy.toStdString()};
    } else if (QFileInfo::exists(file) && !QFileInfo(file).isReadable()) {
        trouble_ = {ProfileTrouble::Kind::NotReadable, file.toStdString(), {}};
        notWritableTold_ = true;
    }
}

std::optional<ProfileTrouble> QtProfile::takeTrouble() {
    if (trouble_)
        return std::exchange(trouble_, std::nullopt);
    if (store_->status() != QSettings::AccessError || std::exchange(notWritableTold_, true))
        return std::nullopt;
    return ProfileTrouble{ProfileTrouble::Kind::NotWritable, store_->fileName().toStdString(), {}};
}

std::optional<std::string> QtProfile::text(const std::string& section, const std::string& entry) const {
    return valueOf(store_->value(profileKey(section, entry)));
}

void QtProfile::setText(const std::string& section, const std::string& entry, const std::string& value) {
    // What stays the same need not be written again, though something that is not text gives way.
    if (text(section, entry) != value)
        store_->setValue(profileKey(section, entry), stored(value));
}

void QtProfile::remove(const std::string& section, const std::string& entry) {
    // The store's own removal takes a group of the same name with it, so its contents are put back.
    const QString key = profileKey(section, entry);
    store_->beginGroup(key);
    const QStringList nested = store_->allKeys();
    QVariantList values;
    for (const QString& name : nested)
        values << store_->value(name);
    store_->endGroup();

    store_->remove(key);
    for (qsizetype i = 0; i < nested.size(); ++i)
        store_->setValue(key + u'/' + nested[i], values[i]);
}

std::vector<std::string> QtProfile::entries(const std::string& section) const {
    store_->beginGroup(sectionKey(section));
    const QStringList keys = store_->childKeys();
    store_->endGroup();

    std::vector<std::string> names;
    for (const QString& key : keys) {
        if (std::optional<std::string> name = entryOfKey(key))
            names.push_back(std::move(*name));
    }
    std::sort(names.begin(), names.end());
    return names;
}

void QtProfile::sync() {
    store_->sync();
}

std::string QtProfile::fileName() const {
    return store_->fileName().toStdString();
}

} // namespace dyeworks
