#include <herald/messages/ClientMessageTable.h>
#include <herald/messages/ServerMessageTable.h>
#include <herald/platform/keystone/UTFEncoder.h>

#include <algorithm>
#include <set>

#include "Examples.h"
#include "HeaderComments.h"
#include "Printing.h"
#include "Schemas.h"

namespace Tessel {

namespace {

constexpr std::string_view STYLE =
#include "page.css.inc"
    ;

constexpr std::string_view SCRIPT =
#include "page.js.inc"
    ;

constexpr std::string_view INTRODUCTION = R"(<h1>The protocol</h1>
<p>Every message from servers, every request to them and every record that they hold, printed from the layouts that
Herald reads and writes by, with the fields in wire order.</p>
<div class="wide"><table><tr><th>Type<th>On the wire
<tr><td><code>bool</code><td>one byte; all but 0 are true
<tr><td><code>byte</code> <code>short</code> <code>int</code> <code>int64</code><td>signed, 8, 16, 32 and 64 bits, high byte first
<tr><td><code>string</code><td>an unsigned 16-bit count of bytes, then UTF-8
<tr><td>list<td>a count of the type that is named, or an earlier field, then the items
<tr><td>message<td>a <code>short</code>, its id, then the body
<tr><td>request<td>a <code>short</code>, its id, a <code>short</code>, the bytes in its body, then the body
</table></div>
<p>A box of a picture is a field with its first byte, where that is the same in every body, and its bytes; n is what the
count says. In an example the bytes have the colours of their fields.</p>
)";

std::string escape(std::string_view text) {
  std::string html;
  for (const char c : text) {
    if (c == '&')
      html += "&amp;";
    else if (c == '<')
      html += "&lt;";
    else if (c == '>')
      html += "&gt;";
    else if (c == '"')
      html += "&quot;";
    else
      html += c;
  }
  return html;
}

std::string code(std::string_view text) { return "<code>" + escape(text) + "</code>"; }

std::string link(std::string_view className) {
  const std::string name = escape(className);
  return "<a href=\"#" + name + "\">" + name + "</a>";
}

// Comments have code between backquotes.
std::string paragraph(std::string_view comment) {
  if (comment.empty()) return "";
  std::string html = "<p>";
  bool isCode = false;
  for (std::size_t at = 0; at <= comment.size();) {
    const std::size_t end = std::min(comment.find('`', at), comment.size());
    const std::string_view part = comment.substr(at, end - at);
    html += isCode ? code(part) : escape(part);
    isCode = !isCode;
    at = end + 1;
  }
  return html + "</p>\n";
}

constexpr int VARIES = -1;

// The bytes that a field or record always takes; VARIES when its data decide.
int fixedWidth(const FieldSchema& field);

int fixedWidth(const RecordSchema& record) {
  int sum = 0;
  for (const FieldSchema& field : record.fields) {
    const int width = fixedWidth(field);
    if (width == VARIES) return VARIES;
    sum += width;
  }
  return sum;
}

int fixedWidth(const FieldSchema& field) {
  if (field.condition || field.tagField) return VARIES;
  if (field.kind == FieldKind::NUMBER) return widthOf(field.type);
  return field.kind == FieldKind::RECORD ? fixedWidth(*field.record) : VARIES;
}

std::string listWidthText(const FieldSchema& list) {
  const std::string count = list.countField ? "" : std::to_string(widthOf(list.type)) + " + ";
  const int item = list.tagField ? VARIES : fixedWidth(list.items.front());
  if (item == VARIES) return count + "items";
  return count + (item == 1 ? "n" : "n × " + std::to_string(item));
}

std::string widthText(const FieldSchema& field) {
  FieldSchema present = field;
  present.condition.reset();
  const std::string otherwise = field.condition ? "0 or " : "";
  if (field.kind == FieldKind::LIST) return otherwise + listWidthText(field);
  if (field.kind == FieldKind::TEXT) return otherwise + "2 + n";
  const int width = fixedWidth(present);
  return otherwise + (width == VARIES ? "n" : std::to_string(width));
}

std::string startText(const FieldSchema& field) {
  if (field.kind == FieldKind::TEXT) return field.startText.empty() ? "" : code(field.startText);
  if (field.kind != FieldKind::NUMBER) return "";
  if (field.type == WireType::BOOL) return code(field.startNumber != 0 ? "true" : "false");
  return code(std::to_string(field.startNumber));
}

std::string typeText(const FieldSchema& field, const RecordSchema& record) {
  switch (field.kind) {
    case FieldKind::NUMBER:
      return code(nameOf(field.type));
    case FieldKind::TEXT:
      return code(nameOf(field.type)) + (field.isSecret ? ", secret" : "");
    case FieldKind::RECORD:
      return link(field.record->name);
    case FieldKind::LIST:
      break;
  }
  const std::string count = field.countField ? ", as many as " + code(record.fields[*field.countField].name)
                                             : ", " + code(nameOf(field.type)) + " count";
  if (!field.tagField) return "list of " + typeText(field.items.front(), record) + count;
  std::string text = "list" + count + ", of the class that " + code(record.fields[*field.tagField].name) + " names:";
  for (const FieldSchema& item : field.items) text += "<br>" + code(item.name) + " " + typeText(item, record);
  return text;
}

std::string hexadecimal(std::int64_t number) {
  std::string digits;
  for (auto rest = static_cast<std::uint64_t>(number); rest != 0; rest /= 16)
    digits.insert(digits.begin(), "0123456789abcdef"[rest % 16]);
  return "0x" + (digits.empty() ? "0" : digits);
}

std::string conditionText(const FieldCondition& condition, const RecordSchema& record) {
  const FieldSchema& field = record.fields[condition.field];
  const std::string name = code(field.name);
  if (field.type == WireType::BOOL) return "only if " + name + (condition.holdsFor(1) ? "" : " is false");
  const bool isOne = condition.first == condition.last;
  if (condition.mask != -1) {
    return "only if " + name + " &amp; " + code(hexadecimal(condition.mask)) + " is "
           + code(hexadecimal(condition.first)) + (isOne ? "" : " to " + code(hexadecimal(condition.last)));
  }
  return "only if " + name + " is " + code(std::to_string(condition.first))
         + (isOne ? "" : " to " + code(std::to_string(condition.last)));
}

std::string valueNamesOf(const FieldSchema& field) {
  std::string names;
  for (const auto& [value, name] : field.valueNames)
    names += (names.empty() ? "<br>" : ", ") + std::to_string(value) + " " + escape(name);
  return names;
}

std::string pictureOf(const RecordSchema& record) {
  std::string picture = "<div class=\"picture\">";
  int offset = 0;
  for (const FieldSchema& field : record.fields) {
    const int width = fixedWidth(field);
    picture += width != VARIES ? "<div style=\"--bytes:" + std::to_string(width) + "\">" : "<div class=\"open\">";
    picture += "<small>" + (offset != VARIES ? "+" + std::to_string(offset) : "…") + "</small>" + escape(field.name)
               + "<small>" + widthText(field) + "</small></div>";
    offset = offset == VARIES || width == VARIES ? VARIES : offset + width;
  }
  return picture + "</div>\n";
}

std::string fieldsOf(const RecordSchema& record) {
  if (record.fields.empty()) return "<p class=\"dim\">No body.</p>\n";
  std::string rows = "<div class=\"wide\"><table><tr><th>Field<th>Type<th>Bytes<th>New\n";
  for (const FieldSchema& field : record.fields) {
    rows += "<tr><td>" + code(field.name) + "<td>" + typeText(field, record) + valueNamesOf(field)
            + (field.condition ? "<br>" + conditionText(*field.condition, record) : "") + "<td>" + widthText(field)
            + "<td>" + startText(field) + '\n';
  }
  return pictureOf(record) + rows + "</table></div>\n";
}

// A body that is one record is shown as that record's fields.
std::string bodyOf(const RecordSchema& body) {
  if (body.fields.size() != 1 || body.fields.front().kind != FieldKind::RECORD) return fieldsOf(body);
  const FieldSchema& only = body.fields.front();
  return "<p>The body is one " + link(only.record->name) + ", " + code(only.name) + ":</p>\n" + fieldsOf(*only.record);
}

constexpr std::string_view MASK = "***";

std::string bytesOf(const Example& example, const FieldPlace& place) {
  constexpr std::string_view DIGITS = "0123456789abcdef";
  std::string bytes;
  for (std::size_t at = place.begin; at < place.end; ++at) {
    const std::uint8_t byte = example.body[at];
    if (at > place.begin) bytes += ' ';
    if (place.field->isSecret)
      bytes += "**";
    else
      bytes.append({DIGITS[byte >> 4], DIGITS[byte & 15]});
  }
  return bytes;
}

std::string valueOf(const FieldPlace& place) {
  if (place.field->isSecret) return code(MASK);
  if (place.field->kind == FieldKind::TEXT) return code("\"" + place.value + "\"");
  if (place.field->kind == FieldKind::LIST) return code(place.value) + " items";
  const auto named = std::ranges::find(place.field->valueNames, place.value,
                                       [](const auto& name) { return std::to_string(name.first); });
  return code(place.value) + (named != place.field->valueNames.end() ? " " + escape(named->second) : "");
}

// Empty when it would tell a secret.
std::string debugTextOf(const Example& example) {
  const bool hasSecret =
      std::ranges::any_of(example.places, [](const FieldPlace& place) { return place.field->isSecret; });
  return hasSecret ? "" : "<p class=\"debug\">" + escape(example.debugText) + "</p>\n";
}

std::string exampleOf(const Example& example) {
  constexpr std::size_t COLOURS = 8;
  std::string bytes;
  std::string values;
  for (std::size_t i = 0; i < example.places.size(); ++i) {
    const FieldPlace& place = example.places[i];
    const std::string mark = " class=\"k" + std::to_string(i % COLOURS) + "\" data-f=\"" + std::to_string(i) + "\">";
    bytes += "<span" + mark + bytesOf(example, place) + "</span>\n";
    values += "<li" + mark + escape(place.path) + " " + valueOf(place) + '\n';
  }
  return "<details class=\"example\" open><summary>Example: " + std::to_string(example.body.size()) + " bytes, packet "
         + std::to_string(example.packet) + " of " + escape(example.capture) + "</summary>\n<div class=\"bytes\">"
         + bytes + "</div>\n<ul class=\"values\">" + values + "</ul>\n" + debugTextOf(example) + "</details>\n";
}

enum class EntryKind { FROM_SERVERS, TO_SERVERS, RECORD };

// A message, request or record.
struct Entry {
  EntryKind kind;
  const RecordSchema* record;
  std::vector<int> ids{};
  /// Of a new message.
  std::string debugText{};
};

class PagePrinter {
 public:
  PagePrinter(const Schema& schema, const Examples& examples) : schema_(schema), examples_(examples) {
    addEntries(schema.messages(), EntryKind::FROM_SERVERS);
    addEntries(schema.requests(), EntryKind::TO_SERVERS);
    for (const auto& [name, entry] : entries_) {
      const HeaderComments::OfClass* comment = comments_.find(name);
      areas_[comment != nullptr ? comment->area : "Other"].push_back(&entry);
    }
    for (auto& [area, entries] : areas_) std::ranges::stable_sort(entries, {}, &Entry::kind);
    for (const auto& [name, record] : schema.records()) {
      noteUses(record);
      // One class is a message and, in another message, a record.
      if (schema.find(name) == &record) records_.push_back({EntryKind::RECORD, &record});
    }
  }

  std::string print() const {
    std::string page = R"(<!doctype html>
<html lang="en">
<meta charset="utf-8">
<meta name="viewport" content="width=device-width, initial-scale=1">
<title>The protocol</title>
<style>
)" + std::string(STYLE) + R"(</style>
<header><div><strong>The protocol</strong><input type="search" placeholder="Class, id, field or text; / leads here" aria-label="Search">
<output></output></div></header>
<main>
)";
    page += std::string(INTRODUCTION) + navigation();
    for (const auto& [area, entries] : areas_) page += sectionOf(area, entries);
    page += "<section id=\"Records\">\n<h2>Records</h2>\n";
    for (const Entry& entry : records_) page += print(entry);
    return page + "</section>\n" + emptyIds() + "</main>\n<script>\n" + std::string(SCRIPT) + "</script>\n</html>\n";
  }

 private:
  void addEntries(std::span<const MessageSchema> messages, EntryKind kind) {
    for (const MessageSchema& message : messages) {
      if (message.body == nullptr) continue;
      Entry& entry = entries_.try_emplace(message.body->name, Entry{kind, message.body}).first->second;
      entry.ids.push_back(message.id);
      entry.debugText = UTFEncoder::toUTF8(kind == EntryKind::FROM_SERVERS
                                               ? findClientMessageRow(message.id)->create()->toDebugString()
                                               : findServerMessageRow(message.id)->create()->toDebugString());
      noteUses(*message.body);
    }
  }

  void noteUses(const RecordSchema& holder) {
    for (const FieldSchema& field : holder.fields) {
      if (field.record != nullptr) uses_[field.record->name].insert(holder.name);
      for (const FieldSchema& item : field.items) {
        if (item.record != nullptr) uses_[item.record->name].insert(holder.name);
      }
    }
  }

  std::string navigation() const {
    std::string links = "<nav>\n";
    for (const auto& [area, entries] : areas_)
      links += R"(<a href="#)" + anchorOf(area) + "\">" + escape(area) + R"( <span class="dim">)"
               + std::to_string(entries.size()) + "</span></a>\n";
    return links + R"(<a href="#Records">Records <span class="dim">)" + std::to_string(records_.size())
           + "</span></a>\n</nav>\n";
  }

  // No class is named like this.
  static std::string anchorOf(std::string area) {
    std::ranges::replace(area, ' ', '-');
    return "area-" + area;
  }

  std::string sectionOf(const std::string& area, const std::vector<const Entry*>& entries) const {
    std::string section = "<section id=\"" + anchorOf(area) + "\">\n<h2>" + escape(area) + "</h2>\n"
                          + paragraph(comments_.aboutArea(area));
    for (const Entry* entry : entries) section += print(*entry);
    return section + "</section>\n";
  }

  std::string print(const Entry& entry) const {
    const std::string name = escape(entry.record->name);
    std::string tags;
    std::string names = name;
    for (const int id : entry.ids) {
      tags += " <span class=\"tag id\">" + std::to_string(id) + "</span>";
      names += ' ' + std::to_string(id);
    }
    if (entry.kind != EntryKind::RECORD)
      tags += entry.kind == EntryKind::FROM_SERVERS ? " <span class=\"tag\">↓ from servers</span>"
                                                    : " <span class=\"tag\">↑ to servers</span>";
    std::string html = R"(<article class="entry" id=")" + name + R"(" data-names=")" + names + "\">\n<h3><a href=\"#"
                       + name + "\">" + name + "</a>" + tags + "</h3>\n";
    if (const HeaderComments::OfClass* comment = comments_.find(entry.record->name)) html += paragraph(comment->text);
    html += entry.kind == EntryKind::RECORD ? fieldsOf(*entry.record) : bodyOf(*entry.record);
    html += usesOf(entry.record->name);
    if (!entry.debugText.empty()) html += "<p class=\"dim\">Debug text when new: " + code(entry.debugText) + "</p>\n";
    const auto example = examples_.find(entry.record->name);
    if (example != examples_.end() && !example->second.places.empty()) html += exampleOf(example->second);
    return html + "</article>\n";
  }

  std::string usesOf(const std::string& name) const {
    const auto holders = uses_.find(name);
    if (holders == uses_.end()) return "";
    std::string html = "<p class=\"dim\">In";
    for (const std::string& holder : holders->second) html += " " + link(holder);
    return html + "</p>\n";
  }

  std::string emptyIds() const {
    std::string ids;
    for (const MessageSchema& message : schema_.messages()) {
      if (message.body == nullptr) ids += " <span class=\"tag id\">" + std::to_string(message.id) + "</span>";
    }
    return ids.empty() ? "" : "<p>Ids from servers that create no message:" + ids + "</p>\n";
  }

  const Schema& schema_;
  const Examples& examples_;
  HeaderComments comments_;
  std::map<std::string, Entry> entries_;
  std::map<std::string, std::vector<const Entry*>> areas_;
  std::vector<Entry> records_;
  std::map<std::string, std::set<std::string>> uses_;
};

}  // namespace

std::string protocolPage(const Schema& schema, const std::vector<std::string>& captures) {
  const Examples examples = findExamples(captures);
  return PagePrinter(schema, examples).print();
}

}  // namespace Tessel
