// Program: puts the real parts together and takes them apart in order.
#pragma once

#include <memory>
#include <optional>

namespace kelvo {

enum class FrontKind { Window, Headless };

/// Main thread only; made once the application object exists and destroyed before it.
class Program {
public:
    explicit Program(FrontKind frontKind);

    /// The orderly end: nothing more is scheduled, running commands are ended with all their
    /// children, settings and lines are on disk.
    ~Program();

    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    /// Brings the program up and runs the event loop to its end; the exit code. Where another copy
    /// runs already, that one shows its window and this one returns at once.
    int run();

private:
    class Machine;
    std::unique_ptr<Machine> fMachine;
};

} // namespace kelvo
