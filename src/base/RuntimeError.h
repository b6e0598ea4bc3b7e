#pragma once

#include <exception>
#include <new>
#include <stdexcept>
#include <string>

namespace tarnview {

/// A failure inside a procedure. It travels as an exception to the user's action, is logged on its
/// way (Trap) and ends there; between procedures a failure is a false result.
class RuntimeError : public std::runtime_error {
 public:
  RuntimeError(long itsNumber, const std::string& description, std::string itsSource = "Tarnview")
      : std::runtime_error(description), number(itsNumber), source(std::move(itsSource)) {}

  long number;
  std::string source;
};

// Numbers of run-time errors that have no other home.
inline constexpr long kInvalidCall = 5;
inline constexpr long kOutOfMemory = 7;

/// Any exception as a run-time error.
inline RuntimeError AsRuntimeError(const std::exception& error) {
  if (const auto* raised = dynamic_cast<const RuntimeError*>(&error)) return *raised;
  if (dynamic_cast<const std::bad_alloc*>(&error))
    return RuntimeError(kOutOfMemory, "Out of memory");
  return RuntimeError(kInvalidCall, error.what());
}

}  // namespace tarnview
