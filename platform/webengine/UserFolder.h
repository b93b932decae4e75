// Where the pages of the user who is logged in keep what outlasts them: cookies, storage, a small cache, and
// what the user chose for sites.
//
// Each user has one folder, and nobody but the account of the system may look into it. The page engine works
// in a folder of its own inside, which is never used a second time once it was given up: an engine
// that is still on its way out writes by path, and must not write into the next one's.
#pragma once

#include <string>
#include <string_view>

namespace webengine {

class UserFolder final {
public:
    /// `all_users` is a native path; it is made when it is first needed. Empty: nothing is kept for anybody.
    explicit UserFolder(std::string all_users) : all_users_(std::move(all_users)) {}

    /// From now on the folder of this user. For one who keeps no history the engine gets none, and what it
    /// kept before goes. What is damaged is set aside.
    void Begin(std::string_view user, bool keeps_history);
    /// Nobody is logged in. What the engine leaves that is not to stay goes.
    void End();
    /// Waits a moment until the engine has written what it keeps; it must have ended.
    void Close() const;
    /// The engine keeps nothing for this user, and what it kept goes.
    void GiveUpEngine();
    /// The engine's folder is given up, with all that is in it, for a new one. The rest stays.
    void RenewEngine();
    /// Takes away what engines kept for a user who is not logged in, or has no engine.
    void RemoveEngines(std::string_view user) const;
    /// An engine has kept something for a user and was not given up since.
    bool HasEngine(std::string_view user) const;
    /// Takes away what an earlier user of that name left.
    void Remove(std::string_view user) const;

    /// The user's folder, without a slash at its end: there, and open for writing. Empty when nothing can be
    /// kept: nobody is logged in, or the folder cannot be written to.
    const std::string& Path() const { return path_; }
    /// The engine's folder in it; empty when Path is, and for a user who keeps no history.
    const std::string& Engine() const { return engine_; }

    /// The folder of all users of the program that lies in `program_folder`.
    static std::string OfAllUsers(const std::string& data_folder, const std::string& program_folder);

private:
    std::string Of(std::string_view user) const;
    void ChooseEngine();

    std::string all_users_;
    std::string path_;
    std::string engine_;
    int number_ = 0;
};

}  // namespace webengine
