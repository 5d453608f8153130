#include "platform/qt/QtProfile.h"

#include "platform/posix/HostFile.h"
#include "platform/qt/ProfileKeys.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLockFile>
#include <QTemporaryDir>

#include <algorithm>
#include <set>
#include <span>
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

/// The store's own removal takes a group of the same name with it, so its contents are put back.
void removeAlone(QSettings& store, const QString& key) {
    store.beginGroup(key);
    const QStringList nested = store.allKeys();
    QVariantList values;
    for (const QString& name : nested)
        values << store.value(name);
    store.endGroup();

    store.remove(key);
    for (qsizetype i = 0; i < nested.size(); ++i)
        store.setValue(key + u'/' + nested[i], values[i]);
}

bool holdsAllOf(const QSettings& made, const QSettings& wanted) {
    const QStringList keys = wanted.allKeys();
    return made.allKeys() == keys && std::ranges::all_of(keys, [&](const QString& key) {
               const QVariant value = wanted.value(key);
               // Of what a person wrote by hand, not everything reads as it was once it has been written.
               return !valueOf(value) || made.value(key) == value;
           });
}

/// Changes the settings in `file`, which then goes by the name `checked`. False when it could not be written
/// as a whole.
bool changeStore(const QString& file, const std::map<QString, QVariant>& changes, const QString& checked) {
    QSettings changing(file, QSettings::IniFormat);
    for (const auto& [key, changed] : changes) {
        if (changed.isValid())
            changing.setValue(key, changed);
        else
            removeAlone(changing, key);
    }
    changing.sync();
    if (changing.status() == QSettings::AccessError || !QFile::rename(file, checked))
        return false;
    // A store does not notice that there was no room for the last of what it wrote. Under another name it
    // reads that anew.
    return holdsAllOf(QSettings(checked, QSettings::IniFormat), changing);
}

constexpr int kLockPatience = 1000; // Milliseconds.
constexpr QFileDevice::Permissions kOwnersOnly = QFileDevice::ReadOwner | QFileDevice::WriteOwner;

} // namespace

QtProfile::QtProfile(const std::string& hostPath)
    : store_(hostPath.empty()
                 ? std::make_unique<QSettings>(QSettings::IniFormat, QSettings::UserScope,
                                               QStringLiteral("Quillon"), QStringLiteral("Orrery Dyeworks"))
                 : std::make_unique<QSettings>(QString::fromStdString(hostPath), QSettings::IniFormat)) {
    // Without this, settings of the whole host would show through.
    store_->setFallbacksEnabled(false);
    idle_.setSingleShot(true);
    QObject::connect(&idle_, &QTimer::timeout, &idle_, [this] { sync(); });
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

QtProfile::~QtProfile() {
    sync();
}

std::optional<ProfileTrouble> QtProfile::takeTrouble() {
    if (trouble_)
        return std::exchange(trouble_, std::nullopt);
    if (!writeFailed_ || std::exchange(notWritableTold_, true))
        return std::nullopt;
    return ProfileTrouble{ProfileTrouble::Kind::NotWritable, store_->fileName().toStdString(), {}};
}

QVariant QtProfile::value(const QString& key) const {
    const std::lock_guard lock(mutex_);
    const auto changed = changes_.find(key);
    return changed != changes_.end() ? changed->second : store_->value(key);
}

void QtProfile::change(const QString& key, const QVariant& value) {
    const std::lock_guard lock(mutex_);
    changes_[key] = value;
    written_ = false;
    // Without an event loop, `sync` and the destruction are what is left.
    if (QCoreApplication::instance() != nullptr)
        idle_.start();
}

std::optional<std::string> QtProfile::text(const std::string& section, const std::string& entry) const {
    return valueOf(value(profileKey(section, entry)));
}

void QtProfile::setText(const std::string& section, const std::string& entry, const std::string& value) {
    // What stays the same need not be written again, though something that is not text gives way.
    if (text(section, entry) != value)
        change(profileKey(section, entry), stored(value));
}

void QtProfile::remove(const std::string& section, const std::string& entry) {
    const QString key = profileKey(section, entry);
    if (value(key).isValid())
        change(key, {});
}

std::vector<std::string> QtProfile::entries(const std::string& section) const {
    const std::lock_guard lock(mutex_);
    const QString group = sectionKey(section);
    store_->beginGroup(group);
    const QStringList keys = store_->childKeys();
    store_->endGroup();
    const QString prefix = group.isEmpty() ? group : group + u'/';
    std::set<QString> present(keys.begin(), keys.end());
    for (const auto& [key, changed] : changes_) {
        const QString name = key.mid(prefix.size());
        if (!key.startsWith(prefix) || name.contains(u'/'))
            continue;
        if (changed.isValid())
            present.insert(name);
        else
            present.erase(name);
    }

    std::vector<std::string> names;
    for (const QString& key : present) {
        if (std::optional<std::string> name = entryOfKey(key))
            names.push_back(std::move(*name));
    }
    std::sort(names.begin(), names.end());
    return names;
}

void QtProfile::sync() {
    const std::lock_guard lock(mutex_);
    idle_.stop();
    if (!written_) {
        written_ = writeChanges();
        writeFailed_ = !written_;
    }
    store_->sync();
    if (!written_)
        return;
    // A store that finds the file as long as before and not a moment older does not read it again.
    std::erase_if(changes_,
                  [this](const auto& change) { return store_->value(change.first) == change.second; });
}

/// The changes are carried out on a copy of the file as it now is, which then takes its place.
bool QtProfile::writeChanges() {
    const QString file = store_->fileName();
    QDir().mkpath(QFileInfo(file).absolutePath());
    // The one that the store itself would hold, so that programs of other versions wait for it, too.
    QLockFile lock(file + QStringLiteral(".lock"));
    const QTemporaryDir folder;
    const QString copy = folder.filePath(QStringLiteral("settings"));
    const QString checked = folder.filePath(QStringLiteral("checked"));
    if (!lock.tryLock(kLockPatience) || !folder.isValid())
        return false;
    const bool isNew = !QFileInfo::exists(file);
    if (!isNew && !QFile::copy(file, copy))
        return false;
    QFile::setPermissions(copy, kOwnersOnly);
    if (!changeStore(copy, changes_, checked))
        return false;
    QFile made(checked);
    if (!made.open(QIODevice::ReadOnly))
        return false;
    const QByteArray bytes = made.readAll();
    const std::span<const std::byte> piece =
        std::as_bytes(std::span(bytes.constData(), static_cast<std::size_t>(bytes.size())));
    if (made.error() != QFileDevice::NoError ||
        writeHostFile(QFile::encodeName(file).toStdString(), FilePieces(&piece, 1)))
        return false;
    if (isNew)
        QFile::setPermissions(file, kOwnersOnly);
    return true;
}

std::string QtProfile::fileName() const {
    return store_->fileName().toStdString();
}

} // namespace dyeworks
