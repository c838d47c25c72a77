#include "platform/linux/SpawnedProgramRunner.h"

#include "platform/linux/FileDescriptor.h"

#include <QFile>

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <optional>
#include <poll.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace guide {

namespace {

using Reason = ProgramEnd::Reason;
using SteadyTime = std::chrono::steady_clock::time_point;

constexpr qsizetype kMostErrorOutput = 64 * 1024;
constexpr int kNiceness = 10;
constexpr std::chrono::milliseconds kLookEvery{100};
/// For devices that do not report the end of a process.
constexpr std::chrono::milliseconds kLookForEndEvery{10};
/// How long the children of a program that has exited may go on writing, and killed ones may take to end.
constexpr std::chrono::seconds kLongestAfterglow{2};

struct Pipe {
    FileDescriptor read;
    FileDescriptor write;
};

std::optional<Pipe> makePipe() {
    std::array<int, 2> ends{};
    if (::pipe2(ends.data(), O_CLOEXEC) != 0) {
        return std::nullopt;
    }
    Pipe pipe{FileDescriptor(ends[0]), FileDescriptor(ends[1])};
    return ::fcntl(ends[0], F_SETFL, O_NONBLOCK) == 0 ? std::optional(std::move(pipe)) : std::nullopt;
}

/// The process, or 0 when it cannot be started.
pid_t spawn(const ProgramRun& run, int output, int errorOutput) {
    std::vector<QByteArray> texts{QFile::encodeName(run.program)};
    for (const QString& argument : run.arguments) {
        texts.push_back(QFile::encodeName(argument));
    }
    std::vector<char*> arguments;
    arguments.reserve(texts.size() + 1);
    for (QByteArray& text : texts) {
        arguments.push_back(text.data());
    }
    arguments.push_back(nullptr);

    posix_spawn_file_actions_t files{};
    posix_spawn_file_actions_init(&files);
    posix_spawn_file_actions_addopen(&files, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
    posix_spawn_file_actions_adddup2(&files, output, STDOUT_FILENO);
    posix_spawn_file_actions_adddup2(&files, errorOutput, STDERR_FILENO);
    posix_spawn_file_actions_addclosefrom_np(&files, STDERR_FILENO + 1);

    posix_spawnattr_t attributes{};
    posix_spawnattr_init(&attributes);
    sigset_t signals{};
    sigemptyset(&signals);
    posix_spawnattr_setsigmask(&attributes, &signals);
    sigfillset(&signals);
    posix_spawnattr_setsigdefault(&attributes, &signals);
    // A session without a terminal: a program that asks there gets an error instead of waiting.
    posix_spawnattr_setflags(&attributes,
                             POSIX_SPAWN_SETSID | POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF);

    pid_t process = 0;
    const bool started =
        ::posix_spawn(&process, arguments.front(), &files, &attributes, arguments.data(), environ) == 0;
    posix_spawnattr_destroy(&attributes);
    posix_spawn_file_actions_destroy(&files);
    if (!started) {
        return 0;
    }
    ::setpriority(PRIO_PGRP, static_cast<id_t>(process), kNiceness);
    return process;
}

/// Until it is reaped, the process keeps its group's number from being used again.
class Program {
  public:
    Program(const ProgramRun& run, std::chrono::milliseconds grace)
        : m_run(run)
        , m_grace(grace) {}

    ProgramEnd end() {
        if (start()) {
            m_startedAt = m_activeAt = std::chrono::steady_clock::now();
            while (!isOver()) {
                await();
                readOutput();
                readErrorOutput();
                lookForEnd();
                takeNextStep(std::chrono::steady_clock::now());
            }
            ::kill(-m_process, SIGKILL);
            ::waitpid(m_process, nullptr, m_hasExited ? 0 : WNOHANG);
        }
        m_end.errorOutput = m_end.errorOutput.right(kMostErrorOutput);
        return std::move(m_end);
    }

  private:
    bool start() {
        std::optional<Pipe> output = makePipe();
        std::optional<Pipe> errorOutput = makePipe();
        if (!output || !errorOutput) {
            return false;
        }
        if (!m_run.outputPath.isEmpty()) {
            m_file = FileDescriptor(::open(QFile::encodeName(m_run.outputPath).constData(),
                                           O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0600));
            if (!m_file) {
                m_end.reason = Reason::NoRoom;
                return false;
            }
        }
        m_process = spawn(m_run, output->write.get(), errorOutput->write.get());
        if (m_process == 0) {
            return false;
        }
        m_output = std::move(output->read);
        m_errorOutput = std::move(errorOutput->read);
        m_processHandle = FileDescriptor(static_cast<int>(::syscall(SYS_pidfd_open, m_process, 0U)));
        return true;
    }

    void await() {
        std::array<pollfd, 3> files{{{m_output.get(), POLLIN, 0},
                                     {m_errorOutput.get(), POLLIN, 0},
                                     {m_hasExited ? -1 : m_processHandle.get(), POLLIN, 0}}};
        const bool reportsEnd = m_hasExited || m_processHandle;
        ::poll(files.data(), files.size(),
               static_cast<int>((reportsEnd ? kLookEvery : kLookForEndEvery).count()));
    }

    /// Calls `take` for what can be read, and closes the file at its end. `take` returns whether to go on.
    template <class Take>
    void read(FileDescriptor& file, const Take& take) {
        std::array<char, 64 * 1024> buffer;
        while (file) {
            const ssize_t bytes = ::read(file.get(), buffer.data(), buffer.size());
            if (bytes < 0 && errno == EINTR) {
                continue;
            }
            if (bytes < 0 && errno == EAGAIN) {
                return;
            }
            if (bytes <= 0) {
                file = FileDescriptor();
                return;
            }
            m_activeAt = std::chrono::steady_clock::now();
            if (!take(QByteArrayView(buffer.data(), bytes))) {
                return;
            }
        }
    }

    void readOutput() {
        read(m_output, [this](QByteArrayView bytes) {
            const bool isTooMuch = bytes.size() > m_run.mostOutput - m_end.outputBytes - m_ownOutputBytes;
            if (isTooMuch || (m_file && !writeToFile(bytes))) {
                cut(isTooMuch ? Reason::TooMuchOutput : Reason::NoRoom);
                m_output = FileDescriptor();
                return false;
            }
            m_end.outputBytes += bytes.size();
            if (!m_file) {
                m_end.output.append(bytes);
            }
            return true;
        });
        lookAtOwnOutput();
    }

    bool writeToFile(QByteArrayView bytes) {
        while (!bytes.isEmpty()) {
            const ssize_t written =
                ::write(m_file.get(), bytes.data(), static_cast<std::size_t>(bytes.size()));
            if (written < 0 && errno == EINTR) {
                continue;
            }
            if (written <= 0) {
                return false;
            }
            bytes = bytes.sliced(written);
        }
        return true;
    }

    void lookAtOwnOutput() {
        struct stat found{};
        if (m_run.ownOutputPath.isEmpty() ||
            ::stat(QFile::encodeName(m_run.ownOutputPath).constData(), &found) != 0) {
            return;
        }
        if (found.st_size != m_ownOutputBytes) {
            m_ownOutputBytes = found.st_size;
            m_activeAt = std::chrono::steady_clock::now();
        }
        if (m_ownOutputBytes > m_run.mostOutput - m_end.outputBytes) {
            cut(Reason::TooMuchOutput);
        }
    }

    void readErrorOutput() {
        // One piece at a time: a program that floods it must not keep the loop from its limits.
        read(m_errorOutput, [this](QByteArrayView bytes) {
            m_end.errorOutput.append(bytes);
            if (m_end.errorOutput.size() > 4 * kMostErrorOutput) {
                m_end.errorOutput.remove(0, m_end.errorOutput.size() - kMostErrorOutput);
            }
            return false;
        });
    }

    void lookForEnd() {
        if (m_hasExited) {
            return;
        }
        siginfo_t info{};
        const int result = ::waitid(P_PID, static_cast<id_t>(m_process), &info, WEXITED | WNOHANG | WNOWAIT);
        if (result != 0 || info.si_pid == 0) {
            return;
        }
        m_hasExited = true;
        m_exitedAt = std::chrono::steady_clock::now();
        if (!m_isCut) {
            m_end.reason = info.si_code == CLD_EXITED ? Reason::Exited : Reason::Crashed;
            m_end.exitStatus = info.si_status;
        }
    }

    void takeNextStep(SteadyTime now) {
        const bool isStopped = m_run.stopped && m_run.stopped();
        if (!m_hasExited && !m_isCut) {
            if (isStopped) {
                cut(Reason::Stopped);
            } else if (now >= m_startedAt + m_run.longest) {
                cut(Reason::TooLong);
            } else if (now >= m_activeAt + m_run.longestSilence) {
                cut(Reason::Silent);
            }
        }
        const bool isLate = m_hasExited && (isStopped || now >= m_exitedAt + kLongestAfterglow);
        if ((m_isCut || isLate) && !m_askedAt) {
            ::kill(-m_process, SIGTERM);
            m_askedAt = now;
        }
        if (m_askedAt && !m_isKilled && now >= *m_askedAt + m_grace) {
            ::kill(-m_process, SIGKILL);
            m_isKilled = true;
        }
    }

    void cut(Reason reason) {
        if (!m_isCut) {
            m_isCut = true;
            m_end.reason = reason;
        }
    }

    bool isOver() const {
        const auto now = std::chrono::steady_clock::now();
        if (!m_hasExited) {
            // A process that cannot even be killed waits for a broken device.
            return m_isKilled && now >= *m_askedAt + 2 * m_grace;
        }
        // What it wrote last may still be in the pipes, and children may write on.
        return (!m_output && !m_errorOutput) ||
               (m_isKilled && now >= *m_askedAt + m_grace + kLongestAfterglow);
    }

    const ProgramRun& m_run;
    const std::chrono::milliseconds m_grace;
    ProgramEnd m_end;
    FileDescriptor m_file;
    FileDescriptor m_output;
    FileDescriptor m_errorOutput;
    FileDescriptor m_processHandle;
    pid_t m_process = 0;
    std::int64_t m_ownOutputBytes = 0;
    SteadyTime m_startedAt;
    SteadyTime m_activeAt;
    SteadyTime m_exitedAt;
    std::optional<SteadyTime> m_askedAt;
    bool m_hasExited = false;
    /// A limit ended it.
    bool m_isCut = false;
    bool m_isKilled = false;
};

} // namespace

ProgramEnd SpawnedProgramRunner::run(const ProgramRun& run) {
    return Program(run, m_grace).end();
}

} // namespace guide
