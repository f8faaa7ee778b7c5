#include "adapters/system/detached_start.h"

#include "adapters/system/clean_attributes.h"

#include <fcntl.h>
#include <unistd.h>

namespace kelvo {

pid_t startDetached(const std::vector<std::string>& arguments) {
    posix_spawn_file_actions_t files;
    ::posix_spawn_file_actions_init(&files);
    for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO})
        ::posix_spawn_file_actions_addopen(&files, stream, "/dev/null", O_RDWR, 0);
    const CleanAttributes attributes;
    std::vector<char*> words;
    words.reserve(arguments.size() + 1);
    for (const std::string& word : arguments)
        words.push_back(const_cast<char*>(word.c_str()));
    words.push_back(nullptr);
    pid_t pid = -1;
    const int fault =
        ::posix_spawnp(&pid, words.front(), &files, attributes.get(), words.data(), environ);
    ::posix_spawn_file_actions_destroy(&files);
    return fault == 0 ? pid : -fault;
}

} // namespace kelvo
