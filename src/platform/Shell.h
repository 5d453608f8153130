#pragma once

#include <functional>
#include <string>
#include <vector>

namespace dyeworks {

/// A kind of file that the desktop can open with this program. What it is called and how its files are known
/// stands in the program's MIME package (data/orrery-dyeworks.xml).
struct FileTypeRegistration {
    std::string typeName;  ///< "TMF.Document"
    std::string extension; ///< ".tmf"
    std::string mimeType;  ///< "image/x-orrery-tmf", "text/x-orrery-tpf" or "application/x-orrery-tlf"
};

class Shell {
public:
    virtual ~Shell() = default;

    /// Opens a file with the program that the desktop keeps for its kind. False when there is no such file or
    /// no such program.
    virtual bool openWithDefaultProgram(const std::string& path) = 0;

    /// Tells the desktop, for this user only, that the program opens these kinds. Writes nothing where the
    /// program is installed for everybody, nor what is there already in the same form. False when the user's
    /// folders cannot be written.
    virtual bool registerFileTypes(const std::vector<FileTypeRegistration>& types) = 0;

    /// Takes back what `registerFileTypes` has written for this user, whichever copy of the program wrote it.
    /// True when nothing of it is left; false when something could not be removed.
    virtual bool unregisterFileTypes() = 0;

    /// Hands the paths to an instance of this program that is already running for this user and listening.
    /// False when there is none; the caller then opens them itself.
    virtual bool handToRunningInstance(const std::vector<std::string>& paths) = 0;

    /// Makes this process the one that receives such requests. False when another one is.
    virtual bool listenForOpenRequests(std::function<void(const std::vector<std::string>&)> receiver) = 0;
};

} // namespace dyeworks
