#pragma once

#include <stdexcept>

namespace tavrelkin {

// A fault of the program itself. Only the runtime catches it, where it enters the program's code. It then shows a
// message and ends the program with exit status 1.
class RuntimeException : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// An operation was called through a nil reference.
class NilObjectException : public RuntimeException {
 public:
  NilObjectException() : RuntimeException("A nil object was used.") {}
};

// An array or a string was read or written outside its bounds.
class OutOfBoundsException : public RuntimeException {
 public:
  OutOfBoundsException() : RuntimeException("An array was used outside its bounds.") {}
};

}  // namespace tavrelkin
