// SPDX-License-Identifier: GPL-3.0-or-later
// Processes of their own for tests that need a full disk or a user with fewer rights.
#pragma once

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>

namespace korvane {

/// Runs the action in a process of its own and gives its exit status: limits and identities that
/// it changes must not reach the other tests.
template <class Action>
int InAProcessOfItsOwn(Action action) {
  const pid_t child = ::fork();
  if (child == 0) ::_exit(action());
  int status = -1;
  ::waitpid(child, &status, 0);
  return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

/// A limit on the size of files stands for the full disk: the write that passes it is cut short,
/// and the next fails. False when it can't be set.
inline bool FillTheDiskBeyond(rlim_t bytes) {
  std::signal(SIGXFSZ, SIG_IGN);
  const rlimit limit{bytes, bytes};
  return ::setrlimit(RLIMIT_FSIZE, &limit) == 0;
}

/// Gives up the rights of the system's administrator, who may write anywhere.
inline bool BecomeAPlainUser() {
  constexpr uid_t nobody = 65534;
  return ::geteuid() != 0 || ::setuid(nobody) == 0;
}

}  // namespace korvane
