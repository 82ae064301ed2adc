#pragma once
// A full disk for the test's own process: while one of these lives, no file may grow past the
// given size, and a write past it fails (the signal that would end the process is ignored).
#include <csignal>
#include <sys/resource.h>

class FileSizeLimit {
public:
    explicit FileSizeLimit(rlim_t bytes) : oldSignal(std::signal(SIGXFSZ, SIG_IGN))
    {
        getrlimit(RLIMIT_FSIZE, &old);
        rlimit limit{bytes, old.rlim_max};
        set = setrlimit(RLIMIT_FSIZE, &limit) == 0;
    }
    ~FileSizeLimit()
    {
        setrlimit(RLIMIT_FSIZE, &old);
        std::signal(SIGXFSZ, oldSignal);
    }
    bool holds() const { return set; }
    FileSizeLimit(const FileSizeLimit&) = delete;
    FileSizeLimit& operator=(const FileSizeLimit&) = delete;

private:
    void (*oldSignal)(int);
    rlimit old{};
    bool set = false;
};
