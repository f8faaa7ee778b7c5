// A library to preload: time that only counts runs twenty times as fast, so that days of rest fit
// into minutes. The time of day stays as it is. Every process reckons alike: nothing is shared.
#include "support/beneath.h"

#include <poll.h>
#include <pthread.h>
#include <signal.h>
#include <sys/syscall.h>
#include <sys/timerfd.h>
#include <unistd.h>

#include <ctime>

namespace {

constexpr long long cSpeed = 20;
constexpr long long cBillion = 1'000'000'000;

long long nanoseconds(const timespec& time) {
    return time.tv_sec * cBillion + time.tv_nsec;
}

timespec timeOf(long long nanoseconds) {
    return {static_cast<time_t>(nanoseconds / cBillion), static_cast<long>(nanoseconds % cBillion)};
}

/// Never 0 for something above 0: that would switch a timer off.
timespec slowed(const timespec& time) {
    return timeOf((nanoseconds(time) + cSpeed - 1) / cSpeed);
}

bool counts(clockid_t clock) {
    return clock == CLOCK_MONOTONIC || clock == CLOCK_BOOTTIME || clock == CLOCK_MONOTONIC_COARSE;
}

} // namespace

extern "C" {

int clock_gettime(clockid_t clock, timespec* time) {
    static auto* const real = kelvo::beneath<int(clockid_t, timespec*)>("clock_gettime");
    const int result = real(clock, time);
    if (result == 0 && counts(clock))
        *time = timeOf(nanoseconds(*time) * cSpeed);
    return result;
}

int timerfd_settime(int timer, int flags, const itimerspec* setting, itimerspec* before) {
    static auto* const real =
        kelvo::beneath<int(int, int, const itimerspec*, itimerspec*)>("timerfd_settime");
    const itimerspec slow{slowed(setting->it_interval), slowed(setting->it_value)};
    return real(timer, flags, &slow, before);
}

int poll(pollfd* watched, nfds_t count, int timeout) {
    static auto* const real = kelvo::beneath<int(pollfd*, nfds_t, int)>("poll");
    const int slow = timeout <= 0 ? timeout : static_cast<int>((timeout + cSpeed - 1) / cSpeed);
    return real(watched, count, slow);
}

int ppoll(pollfd* watched, nfds_t count, const timespec* timeout, const sigset_t* mask) {
    static auto* const real =
        kelvo::beneath<int(pollfd*, nfds_t, const timespec*, const sigset_t*)>("ppoll");
    const timespec slow = timeout != nullptr ? slowed(*timeout) : timespec{};
    return real(watched, count, timeout != nullptr ? &slow : nullptr, mask);
}

int pthread_cond_clockwait(pthread_cond_t* condition, pthread_mutex_t* mutex, clockid_t clock,
                           const timespec* until) {
    static auto* const real =
        kelvo::beneath<int(pthread_cond_t*, pthread_mutex_t*, clockid_t, const timespec*)>(
            "pthread_cond_clockwait");
    const timespec slow = counts(clock) ? slowed(*until) : *until;
    return real(condition, mutex, clock, &slow);
}

int nanosleep(const timespec* span, timespec*) {
    static auto* const real = kelvo::beneath<int(const timespec*, timespec*)>("nanosleep");
    const timespec slow = slowed(*span);
    return real(&slow, nullptr);
}

int clock_nanosleep(clockid_t clock, int flags, const timespec* time, timespec*) {
    static auto* const real =
        kelvo::beneath<int(clockid_t, int, const timespec*, timespec*)>("clock_nanosleep");
    const bool ofDay = !counts(clock) && (flags & TIMER_ABSTIME) != 0;
    const timespec slow = ofDay ? *time : slowed(*time);
    return real(clock, flags, &slow, nullptr);
}

} // extern "C"
