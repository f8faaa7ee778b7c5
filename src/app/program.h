// Program: puts the real parts together and takes them apart in order.
#pragma once

#include <memory>

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

    /// Registers the factory defaults, shows the front and sets the controller going.
    void start();

private:
    class Machine;
    std::unique_ptr<Machine> fMachine;
};

} // namespace kelvo
