#pragma once

// Parts of a test run in a forked child, so the child may give up root's rights, mount a file
// system of its own or die halfway through a save without changing the test program.

#include <sched.h>
#include <sys/mount.h>
#include <sys/types.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstddef>
#include <exception>
#include <functional>
#include <optional>
#include <string>

namespace ooxml_test {

// Runs setUp, then body, in a forked child and answers the text body returned, or nothing when
// setUp failed because the system does not allow it (the test is then skipped). The child ends
// without running the test program's exit handlers.
inline std::optional<std::string> RunInChild(const std::function<bool()>& setUp,
                                             const std::function<std::string()>& body) {
    constexpr int SetUpFailed = 2;
    int ends[2];
    if (pipe(ends) != 0) {
        return "cannot create a pipe";
    }
    const pid_t child = fork();
    if (child == 0) {
        close(ends[0]);
        if (!setUp()) {
            _exit(SetUpFailed);
        }
        std::string text;
        try {
            text = body();
        } catch (const std::exception& error) {
            text = std::string("unexpected exception: ") + error.what();
        }
        for (std::size_t written = 0; written < text.size();) {
            const ssize_t count = write(ends[1], text.data() + written, text.size() - written);
            if (count <= 0) {
                break;
            }
            written += static_cast<std::size_t>(count);
        }
        _exit(0);
    }
    close(ends[1]);
    std::string text;
    char buffer[4096];
    for (ssize_t count; (count = read(ends[0], buffer, sizeof buffer)) > 0;) {
        text.append(buffer, static_cast<std::size_t>(count));
    }
    close(ends[0]);
    int status = 0;
    waitpid(child, &status, 0);
    if (WIFEXITED(status) && WEXITSTATUS(status) == SetUpFailed) {
        return std::nullopt;
    }
    return text;
}

// Gives up root's right to read and write every file: the child goes on as the user "nobody".
inline bool WithoutRootRights() {
    return geteuid() != 0 || (setgid(65534) == 0 && setuid(65534) == 0);
}

// Mounts an empty file system of that many bytes on the folder, seen by this process alone.
inline bool WithSmallFileSystemAt(const std::string& folder, std::size_t bytes) {
    const std::string options = "size=" + std::to_string(bytes);
    return unshare(CLONE_NEWNS) == 0 && mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0 &&
           mount("tmpfs", folder.c_str(), "tmpfs", 0, options.c_str()) == 0;
}

// Nothing to prepare.
inline bool AsItIs() {
    return true;
}

}  // namespace ooxml_test
