#include <herald/messages/ClientMessageFactory.h>
#include <herald/messages/ClientMessageTable.h>
#include <herald/platform/keystone/ByteStream.h>
#include <herald/platform/keystone/Exceptions.h>
#include <herald/platform/keystone/Format.h>
#include <herald/platform/keystone/UTFEncoder.h>

namespace Tessel {

namespace {

constexpr const wchar_t* FILE_NAME = L"messages/ClientMessageFactory";

// Of the exception that is being handled.
std::wstring describeCurrentException() {
  try {
    throw;
  } catch (const std::exception& failure) {
    return UTFEncoder::toWide(failure.what());
  } catch (...) {
    return L"An exception of an unknown class.";
  }
}

DecodedMessage reportUnknownId(int id) {
  const std::wstring text = formatText(L"Unknown casino message (%d)", id);
  MessageException(FILE_NAME, __LINE__, text, L"Received " + text).report();
  return {.outcome = DecodeOutcome::UNKNOWN_ID, .reason = text};
}

// A few bytes can begin a message whose debug text is long: a report says no more of it than its reader needs.
std::wstring abbreviated(const std::wstring& text) {
  constexpr std::size_t MAX_LENGTH = 300;
  if (text.size() <= MAX_LENGTH) return text;
  return text.substr(0, MAX_LENGTH) + formatText(L"... (%d more characters)", text.size() - MAX_LENGTH);
}

DecodedMessage reportFailedRead(const ClientMessage& message) {
  DecodedMessage result{.outcome = DecodeOutcome::READ_THREW, .reason = describeCurrentException()};
  const std::wstring text = abbreviated(message.toDebugString());
  MessageException(FILE_NAME, __LINE__, text, L"Unknown error when reading message " + text).report();
  return result;
}

DecodedMessage create(int id, ByteStream& in) {
  const ClientMessageRow* row = findClientMessageRow(id);
  if (row == nullptr) return reportUnknownId(id);
  if (row->create == nullptr) return {};
  std::unique_ptr<ClientMessage> message = row->create();
  try {
    const bool readAll = message->read(in);
    return {.message = std::move(message),
            .outcome = readAll ? DecodeOutcome::DECODED : DecodeOutcome::READ_ANSWERED_FALSE};
  } catch (...) {
    return reportFailedRead(*message);
  }
}

}  // namespace

ClientMessage* ClientMessageFactory::byteArrayToMessage(int id, ByteStream& in) {
  // The way of nearly every message, without an account of it.
  if (const ClientMessageRow* row = findClientMessageRow(id); row != nullptr && row->create != nullptr) {
    std::unique_ptr<ClientMessage> message = row->create();
    try {
      message->read(in);
      return message.release();
    } catch (...) {
      reportFailedRead(*message);
      return nullptr;
    }
  }
  return create(id, in).message.release();
}

DecodedMessage ClientMessageFactory::decode(int id, ByteStream& in) {
  const std::size_t before = in.unreadCount();
  DecodedMessage result = create(id, in);
  result.bytesLeft = in.unreadCount();
  result.bytesRead = before - result.bytesLeft;
  return result;
}

}  // namespace Tessel
