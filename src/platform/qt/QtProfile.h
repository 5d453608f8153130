#pragma once

#include "platform/Profile.h"

#include <QSettings>
#include <QTimer>
#include <QVariant>

#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

namespace dyeworks {

/// Settings in an INI file of the user. A file that is damaged gives what can be read of it, and is whole
/// again after the next change; as it was, it is kept beside, with ".damaged" at the end. Changes are written
/// when the event loop is idle, by `sync` and on destruction; a file that cannot be written keeps the changes
/// in memory only, and is tried again with the next one.
///
/// The file is replaced as documents are: on a full disk it stays as it was. What several programs change at
/// once comes together in it, as long as it is not the same entry. Reading is for any thread, all else for
/// the one that made it.
class QtProfile : public Profile {
public:
    /// Settings in the file `hostPath`, or in the user's own one when that is empty.
    explicit QtProfile(const std::string& hostPath = {});
    ~QtProfile() override;
    QtProfile(const QtProfile&) = delete;
    QtProfile& operator=(const QtProfile&) = delete;

    [[nodiscard]] std::optional<std::string> text(const std::string& section,
                                                  const std::string& entry) const override;
    void setText(const std::string& section, const std::string& entry, const std::string& value) override;
    void remove(const std::string& section, const std::string& entry) override;
    [[nodiscard]] std::vector<std::string> entries(const std::string& section) const override;

    /// Writes what has changed to the file.
    void sync() override;

    [[nodiscard]] std::optional<ProfileTrouble> takeTrouble() override;

    /// The settings file, in host form.
    [[nodiscard]] std::string fileName() const;

private:
    /// By whole keys; an invalid value stands for one that is removed.
    using Changes = std::map<QString, QVariant>;

    [[nodiscard]] QVariant value(const QString& key) const;
    void change(const QString& key, const QVariant& value);
    [[nodiscard]] bool writeChanges();

    mutable std::recursive_mutex mutex_;
    std::unique_ptr<QSettings> store_; ///< Is only read from.
    Changes changes_;                  ///< That the store does not tell.
    bool written_ = true;              ///< All of them are in the file.
    bool writeFailed_ = false;
    QTimer idle_;
    std::optional<ProfileTrouble> trouble_;
    bool notWritableTold_ = false;
};

} // namespace dyeworks
