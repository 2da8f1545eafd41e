#pragma once

#include <cstddef>
#include <stdexcept>
#include <string>

namespace platform {

/// The base of every failure that the program foresees; `what()` is one line for the user.
class Error : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// Text that isn't a number, an amount or a date, or a value read as a type that it doesn't have.
class ConversionError : public Error {
  public:
    using Error::Error;
};

/// A number that is too large for its destination.
class OverflowError : public Error {
  public:
    using Error::Error;
};

/// A field that is missing from a row set, or can't be read or written as asked; the text names it.
class FieldError : public Error {
  public:
    using Error::Error;
};

/// A database that can't be opened, or a statement that failed while it ran.
class DatabaseError : public Error {
  public:
    explicit DatabaseError(const std::string& text, int code = 0) : Error(text), code_(code) {}
    /// Returns the engine's number of the error; 0 if it has none.
    int Code() const { return code_; }

  private:
    int code_;
};

/// A row that was deleted or changed by someone else since it was read.
class ConflictError : public DatabaseError {
  public:
    using DatabaseError::DatabaseError;
};

/// A statement that does not compile.
class DialectError : public DatabaseError {
  public:
    /// `position` is the 0-based offset of the fault in the statement's text; the error's text says
    /// the place already.
    DialectError(const std::string& text, std::size_t position)
        : DatabaseError(text), position_(position) {}
    std::size_t Position() const { return position_; }

  private:
    std::size_t position_;
};

} // namespace platform
