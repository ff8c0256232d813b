#pragma once

// Saves of a target made by another process: one killed halfway through, one still running, as
// a save of the same target finds them.

#include "ooxml/child_process.hpp"
#include "ooxml/file_descriptor_writes.hpp"
#include "ooxml/opc/atomic_file.hpp"

#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <string>

namespace ooxml_test {

// A save of the target that writes the content and is killed (SIGKILL) before it finishes,
// leaving its temporary file behind.
inline void KilledSave(const std::string& target, const std::string& content) {
    RunInChild(AsItIs, [&]() -> std::string {
        ooxml::AtomicFile file(target);
        ooxml::WriteAll(file.Descriptor(), content.data(), content.size(), "writing");
        raise(SIGKILL);
        return "not killed";
    });
}

// A save of the target in another process that has written the content to its temporary file and
// waits to be told to finish.
class RunningSave {
public:
    RunningSave(const std::string& target, const std::string& content) {
        if (pipe(ready_) != 0 || pipe(go_) != 0) {
            return;
        }
        child_ = fork();
        if (child_ == 0) {
            char order = 0;
            {
                ooxml::AtomicFile file(target);
                ooxml::WriteAll(file.Descriptor(), content.data(), content.size(), "writing");
                (void)!write(ready_[1], "r", 1);
                (void)!read(go_[0], &order, 1);
                if (order == 'c') {
                    file.Commit();
                }
            }
            _exit(0);
        }
        char ready = 0;
        (void)!read(ready_[0], &ready, 1);
    }
    RunningSave(const RunningSave&) = delete;
    RunningSave& operator=(const RunningSave&) = delete;
    ~RunningSave() { Finish(false); }

    // Lets the save put its file in place (commit) or give it up, and waits for it to end.
    void Finish(bool commit) {
        if (child_ <= 0) {
            return;
        }
        (void)!write(go_[1], commit ? "c" : "a", 1);
        waitpid(child_, nullptr, 0);
        child_ = -1;
        for (const int end : {ready_[0], ready_[1], go_[0], go_[1]}) {
            close(end);
        }
    }

private:
    int ready_[2] = {-1, -1};
    int go_[2] = {-1, -1};
    pid_t child_ = -1;
};

}  // namespace ooxml_test
