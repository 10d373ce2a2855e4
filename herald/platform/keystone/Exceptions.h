#pragma once
#include <herald/platform/keystone/Export.h>

#include <exception>
#include <string>

namespace Tessel {

class BugReporterInterface;

/// Base of every exception of the library: thrown by value, copyable, and built from the source file that raised it
/// (without its extension, as "messages/ClientMessageFactory"), the line, a text and a detail.
class HERALD_API KVRException : public std::exception {
 public:
  KVRException(std::wstring file, int line, std::wstring text, std::wstring detail = {});
  ~KVRException() override;
  KVRException(const KVRException&) = default;
  KVRException(KVRException&&) = default;
  KVRException& operator=(const KVRException&) = default;
  KVRException& operator=(KVRException&&) = default;

  const std::wstring& getFile() const { return file_; }
  int getLine() const { return line_; }
  const std::wstring& getText() const { return text_; }
  const std::wstring& getDetail() const { return detail_; }

  /// The text and the detail, as UTF-8; ": " stands between them where there are both.
  const char* what() const noexcept override { return what_.c_str(); }

  /// Records where the exception was caught; a report prints it.
  void setCaughtBy(std::wstring file, int line);
  const std::wstring& getCaughtByFile() const { return caughtByFile_; }
  int getCaughtByLine() const { return caughtByLine_; }

  /// Hands the exception to the process-wide reporter, or to the one given.
  void report() const;
  void report(BugReporterInterface& reporter) const;

 private:
  std::wstring file_;
  std::wstring text_;
  std::wstring detail_;
  std::wstring caughtByFile_;
  std::string what_;
  int line_;
  int caughtByLine_ = -1;
};

/// Something in the base library failed: a read past the end of a stream, a string that cannot be encoded.
class HERALD_API KeystoneException : public KVRException {
 public:
  KeystoneException(std::wstring file, int line, std::wstring text);
  ~KeystoneException() override;
};

class HERALD_API ObjectNotFoundException : public KVRException {
 public:
  ObjectNotFoundException(std::wstring file, int line, std::wstring text);
  ~ObjectNotFoundException() override;
};

/// A message could not be made or read.
class HERALD_API MessageException : public KVRException {
 public:
  MessageException(std::wstring file, int line, std::wstring text, std::wstring detail);
  ~MessageException() override;
};

class HERALD_API NullPointerException : public KVRException {
 public:
  NullPointerException(std::wstring file, int line, std::wstring text, std::wstring detail);
  ~NullPointerException() override;
};

class HERALD_API IllegalAccessException : public KVRException {
 public:
  IllegalAccessException(std::wstring file, int line, std::wstring text, std::wstring detail);
  ~IllegalAccessException() override;
};

class HERALD_API IllegalStateTransitionException : public KVRException {
 public:
  IllegalStateTransitionException(std::wstring file, int line, std::wstring text, std::wstring detail);
  ~IllegalStateTransitionException() override;
};

class HERALD_API ReadResourceException : public KVRException {
 public:
  ReadResourceException(std::wstring file, int line, std::wstring text, std::wstring detail);
  ~ReadResourceException() override;
};

/// A value lies outside its inclusive bounds; an empty array has the bounds 0 and -1.
class HERALD_API OutOfBoundsException : public KVRException {
 public:
  OutOfBoundsException(std::wstring file, int line, std::wstring name, int lowest, int highest, int index,
                       std::wstring text = {});
  ~OutOfBoundsException() override;

  const std::wstring& getName() const { return name_; }
  int getLowest() const { return lowest_; }
  int getHighest() const { return highest_; }
  int getIndex() const { return index_; }

 private:
  std::wstring name_;
  int lowest_;
  int highest_;
  int index_;
};

}  // namespace Tessel
