// The zoo: one program that misbehaves in the way its first argument names.
#include <fcntl.h>
#include <signal.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdlib>
#include <fstream>
#include <functional>
#include <iostream>
#include <map>
#include <string>
#include <thread>
#include <vector>

namespace {

using Arguments = std::vector<std::string>;

void say(const std::string& text) {
    for (std::size_t done = 0; done < text.size();) {
        const ssize_t size = ::write(STDOUT_FILENO, text.data() + done, text.size() - done);
        if (size < 0)
            std::exit(1);
        done += static_cast<std::size_t>(size);
    }
}

void pause(int milliseconds) {
    std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
}

int silent(const Arguments&) {
    return 0;
}

/// N MiB of lines of 16 bytes.
int flood(const Arguments& arguments) {
    std::string mebibyte;
    while (mebibyte.size() < 1024 * 1024)
        mebibyte += "0123456789abcde\n";
    for (int left = std::stoi(arguments.at(0)); left > 0; --left)
        say(mebibyte);
    return 0;
}

/// Says its number, ignores the request to end, and goes on for a minute.
int stubborn(const Arguments&) {
    (void)::signal(SIGTERM, SIG_IGN);
    say("stubborn " + std::to_string(::getpid()) + "\n");
    pause(60000);
    return 0;
}

/// Leaves a process that holds standard output for N ms and then writes to it; with "away" that
/// process has a session of its own. Ends once the other has said its number.
int grandchild(const Arguments& arguments) {
    say("child\n");
    std::array<int, 2> ready{};
    if (::pipe(ready.data()) != 0)
        return 1;
    if (::fork() != 0) {
        ::close(ready[1]);
        char byte = 0;
        (void)!::read(ready[0], &byte, 1);
        return 0;
    }
    if (std::ranges::count(arguments, "away") > 0)
        ::setsid();
    say("held by " + std::to_string(::getpid()) + "\n");
    ::close(ready[0]);
    ::close(ready[1]);
    pause(std::stoi(arguments.at(0)));
    say("grandchild\n");
    return 0;
}

int exitWith(const Arguments& arguments) {
    say("leaving\n");
    return std::stoi(arguments.at(0));
}

/// Every broken kind once, then a character of four bytes in four writes.
int broken(const Arguments&) {
    say("a\xff"
        "b\xc3("
        "c\xe2\x82");
    say("d\xed\xa0\x80"
        "e");
    for (const char byte : std::string("\xf0\x9f\x8e\xac")) {
        say(std::string(1, byte));
        pause(5);
    }
    say("\xe2\x82");
    return 0;
}

int readInput(const Arguments&) {
    std::string word;
    std::cin >> word;
    say(std::cin.eof() && word.empty() ? "nothing to read" : "read " + word);
    return 0;
}

int readTerminal(const Arguments&) {
    const int fd = ::open("/dev/tty", O_RDONLY);
    say(fd < 0 ? "no terminal" : "a terminal");
    return 0;
}

std::string statusLine(const std::string& name) {
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);) {
        if (line.starts_with(name))
            return line;
    }
    return {};
}

std::string openDescriptors() {
    std::string all;
    for (int fd = 0; fd < 1024; ++fd) {
        if (::fcntl(fd, F_GETFD) >= 0)
            all += " " + std::to_string(fd);
    }
    return all;
}

/// What it was given: one line each. Its parent, the shell, is to lead session and group.
int report(const Arguments&) {
    const pid_t shell = ::getppid();
    say(std::string("session ") + (::getsid(0) == shell ? "shell" : "other") + "\n");
    say(std::string("group ") + (::getpgrp() == shell ? "shell" : "other") + "\n");
    say("blocked" + statusLine("SigBlk:") + "\nignored" + statusLine("SigIgn:") + "\n");
    say("open" + openDescriptors() + "\n");
    return 0;
}

int complain(const Arguments& arguments) {
    say("fine\n");
    const std::string line(1023, 'x');
    for (int left = std::stoi(arguments.at(0)); left > 0; --left)
        (void)!::write(STDERR_FILENO, (line + "\n").data(), 1024);
    return 0;
}

} // namespace

int main(int argc, char** argv) {
    const std::map<std::string, std::function<int(const Arguments&)>> animals = {
        {"silent", silent},         {"flood", flood},
        {"stubborn", stubborn},     {"exit", exitWith},
        {"grandchild", grandchild}, {"broken", broken},
        {"read-input", readInput},  {"read-terminal", readTerminal},
        {"report", report},         {"complain", complain}};
    const auto animal = animals.find(argc > 1 ? argv[1] : "");
    if (animal == animals.end())
        return 2;
    return animal->second(Arguments(argv + 2, argv + argc));
}
