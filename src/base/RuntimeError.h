#pragma once

#include <stdexcept>
#include <string>

namespace tarnview {

/// A failure inside a procedure. It travels as an exception to the user's action, is logged on its way (Trap) and
/// ends there; between procedures a failure is a false result.
class RuntimeError : public std::runtime_error {
 public:
  RuntimeError(long itsNumber, const std::string& description, std::string itsSource = "Tarnview")
      : std::runtime_error(description), number(itsNumber), source(std::move(itsSource)) {}

  long number;
  std::string source;
};

}  // namespace tarnview
