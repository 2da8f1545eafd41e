#include "platform/system/Process.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <thread>

namespace platform {

bool StartDetached(const std::filesystem::path& program,
                   const std::vector<std::string>& arguments) {
    std::vector<std::string> words{program.string()};
    words.insert(words.end(), arguments.begin(), arguments.end());
    std::vector<char*> line;
    line.reserve(words.size() + 1);
    for (std::string& word : words)
        line.push_back(word.data());
    line.push_back(nullptr);

    // A session of its own, so that closing our terminal doesn't end the program.
    posix_spawnattr_t attributes;
    posix_spawn_file_actions_t files;
    posix_spawnattr_init(&attributes);
    posix_spawn_file_actions_init(&files);
    posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSID);
    posix_spawn_file_actions_addopen(&files, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
    pid_t child = 0;
    const int failure =
        posix_spawnp(&child, words.front().c_str(), &files, &attributes, line.data(), environ);
    posix_spawn_file_actions_destroy(&files);
    posix_spawnattr_destroy(&attributes);
    if (failure != 0) return false;

    // Something must wait for its end, or it would stay in the process table as long as this
    // process runs.
    std::thread([child] { waitpid(child, nullptr, 0); }).detach();
    return true;
}

} // namespace platform
