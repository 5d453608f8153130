#pragma once

#include "platform/Profile.h"

#include <QSettings>

#include <memory>

namespace dyeworks {

/// Settings in an INI file of the user. A file that is damaged gives what can be read of it, and is whole
/// again after the next change; as it was, it is kept beside, with ".damaged" at the end. Changes are written
/// when the event loop is idle, by `sync` and on destruction; a file that cannot be written keeps the changes
/// in memory only.
class QtProfile : public Profile {
public:
    /// Settings in the file `hostPath`, or in the user's own one when that is empty.
    explicit QtProfile(const std::string& hostPath = {});

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
    std::unique_ptr<QSettings> store_;
    std::optional<ProfileTrouble> trouble_;
    bool notWritableTold_ = false;
};

} // namespace dyeworks
