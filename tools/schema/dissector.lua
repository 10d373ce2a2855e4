-- The rest is the same for every protocol: it makes the fields of the display filters out of the tables above, and
-- reads messages by them.

local DEEPEST = 64           -- levels of records in records
local MOST_ITEMS = 200000    -- of one message
local VALUES_IN_SUMMARY = 3
local WIDTHS = {bool = 1, byte = 1, short = 2, int = 4, int64 = 8}
local HEADER_OF_MESSAGE, HEADER_OF_REQUEST = 2, 4
local TO_SERVER, GOES_ON = 1, 128

local herald = Proto("herald", "Herald")
herald.prefs.secrets = Pref.bool("Show secrets", false, "Show passwords instead of ***")

local DIRECTIONS = {[0] = "from server", "to server", [128] = "from server, goes on", [129] = "to server, goes on"}
local direction_field = ProtoField.uint8("herald.direction", "Direction", base.DEC, DIRECTIONS)
local id_field = ProtoField.int16("herald.id", "Id")
local size_field = ProtoField.int16("herald.size", "Size of the body")
local class_field = ProtoField.string("herald.class", "Class")
local packets_field = ProtoField.uint32("herald.packets", "Joined packets")

local TRUNCATED = ProtoExpert.new("herald.truncated", "The body ends early", expert.group.MALFORMED, expert.severity.ERROR)
local TRAILING = ProtoExpert.new("herald.trailing", "Bytes are left over", expert.group.PROTOCOL, expert.severity.WARN)
local UNKNOWN = ProtoExpert.new("herald.unknown", "Unknown id", expert.group.UNDECODED, expert.severity.WARN)
local WRONG_SIZE = ProtoExpert.new("herald.wrong_size", "The size is wrong", expert.group.MALFORMED, expert.severity.ERROR)
local UNKNOWN_CLASS = ProtoExpert.new("herald.unknown_class", "Items of an unknown class", expert.group.UNDECODED,
                                      expert.severity.ERROR)
local NO_UTF8 = ProtoExpert.new("herald.no_utf8", "The text is no UTF-8", expert.group.PROTOCOL, expert.severity.WARN)
local NEGATIVE = ProtoExpert.new("herald.negative", "A count below zero", expert.group.PROTOCOL, expert.severity.WARN)
local TOO_MUCH = ProtoExpert.new("herald.too_much", "Too much to show", expert.group.UNDECODED, expert.severity.WARN)
herald.experts = {TRUNCATED, TRAILING, UNKNOWN, WRONG_SIZE, UNKNOWN_CLASS, NO_UTF8, NEGATIVE, TOO_MUCH}

local all_fields = {direction_field, id_field, size_field, class_field, packets_field}

local MAKERS = {
  bool = ProtoField.bool, byte = ProtoField.int8, short = ProtoField.int16, int = ProtoField.int32,
  int64 = ProtoField.int64, string = ProtoField.string, record = ProtoField.none,
}

local function add_field(type, path, label, values)
  local make = MAKERS[type]
  local field = values and make("herald." .. path, label, base.DEC, values) or make("herald." .. path, label)
  table.insert(all_fields, field)
  return field
end

-- A record that may hold itself has the fields herald.RECORD.*, and so have the items of a list whose class the bytes
-- name; others have theirs below the field that holds them.
local function reaches(from, record, seen)
  for _, field in ipairs(records[from]) do
    for _, part in pairs(field.items or {field.item or field}) do
      if part.record == record then return true end
      if part.record and not seen[part.record] then
        seen[part.record] = true
        if reaches(part.record, record, seen) then return true end
      end
    end
  end
  return false
end

local holds_itself = {}
for name in pairs(records) do holds_itself[name] = reaches(name, name, {}) end

local steps_of  -- what reads the fields of a record one by one

local alone = {}
local function record_alone(record)
  if not alone[record] then
    alone[record] = {type = "record", label = record, field = add_field("record", record, record), steps = {}}
    steps_of(records[record], record, alone[record].steps)
  end
  return alone[record]
end

local function step_of(field, path, label)
  local step = {type = field.type, name = field.name, label = label, when = field.when, secret = field.secret}
  if field.type == "list" then
    step.count, step.count_from, step.class_from = field.count, field.count_from, field.class_from
    step.field = add_field(field.count or "int", path .. "_count", label)
    step.item = field.item and step_of(field.item, path, label)
    step.items = {}
    for name, item in pairs(field.items or {}) do step.items[name] = record_alone(item.record) end
  elseif field.type ~= "record" then
    step.field = add_field(field.type, path, label, field.values)
    step.values = field.values
  elseif holds_itself[field.record] then
    step.field = record_alone(field.record).field
    step.steps = record_alone(field.record).steps
  else
    step.field = add_field("record", path, label)
    step.steps = steps_of(records[field.record], path)
  end
  return step
end

function steps_of(fields, path, steps)
  steps = steps or {}
  for _, field in ipairs(fields) do table.insert(steps, step_of(field, path .. "." .. field.name, field.name)) end
  return steps
end

-- A body that is one record has the record's fields as its own.
local function body_steps(class)
  local fields = bodies[class]
  local only = #fields == 1 and fields[1]
  if not only or only.type ~= "record" or only.when then return steps_of(fields, class) end
  if holds_itself[only.record] then return record_alone(only.record).steps end
  return steps_of(records[only.record], class)
end

local classes = {}
for class in pairs(bodies) do
  classes[class] = {field = add_field("record", class, class), steps = body_steps(class)}
end
herald.fields = all_fields

-- A name or text from the bytes may not break a line or turn it around.
local function on_one_line(text)
  return (text:gsub("%c", "."):gsub("\226\128[\142\143\168-\174]", "."):gsub("\226\129[\166-\169]", "."))
end

-- Keeps a value for conditions and counts, and shows the first few values of each record.
local function note(record, step, value)
  if not step.name then return end
  record[step.name] = value
  local text = step.name .. "=" .. on_one_line(tostring(step.values and step.values[value] or value))
  while record and #record.shown < VALUES_IN_SUMMARY do
    table.insert(record.shown, text)
    record = record.within
  end
end

local function summary(record) return table.concat(record.shown, " ") end

local function has(state, count) return state.tvb:len() - state.at >= count end

local function bytes_from(state, start) return state.tvb:range(start, state.at - start) end

-- Says why reading ends here.
local function stop(state, tree, why, text)
  tree:add_proto_expert_info(why, text)
  return false
end

local function stop_short(state, step, tree)
  local left = state.tvb:len() - state.at
  return stop(state, tree, TRUNCATED, "The body ends within " .. step.label .. ", of which it has "
    .. left .. (left == 1 and " byte" or " bytes"))
end

local function travels(when, record)
  if not when then return true end
  local number = record[when.field]
  if number == nil then return false end
  if type(number) == "boolean" then number = number and 1 or 0 end
  if when.mask ~= -1 then
    if type(number) == "number" then number = Int64.new(number) end
    number = number:band(Int64.new(when.mask)):tonumber()
  end
  return number >= when.first and number <= when.last
end

local read = {}  -- by type: each adds what is at state.at to the tree, and answers whether reading can go on

local function read_field(state, step, tree, record)
  if not travels(step.when, record) then return true end
  state.items = state.items + 1
  if state.items > MOST_ITEMS then
    return stop(state, tree, TOO_MUCH, "The message has more than " .. MOST_ITEMS .. " fields")
  end
  return read[step.type](state, step, tree, record)
end

local function read_number(state, step, tree, record)
  local width = WIDTHS[step.type]
  if not has(state, width) then return stop_short(state, step, tree) end
  local range = state.tvb:range(state.at, width)
  local value = width == 8 and range:int64() or range:int()
  if step.type == "bool" then value = value ~= 0 end
  tree:add(step.field, range, value)
  note(record, step, value)
  state.at = state.at + width
  return true
end
for type in pairs(WIDTHS) do read[type] = read_number end

local UTF8_CHARACTERS = {
  "^[^\128-\255]+", "^[\194-\223][\128-\191]", "^\224[\160-\191][\128-\191]",
  "^[\225-\236\238\239][\128-\191][\128-\191]", "^\237[\128-\159][\128-\191]",
  "^\240[\144-\191][\128-\191][\128-\191]", "^[\241-\243][\128-\191][\128-\191][\128-\191]",
  "^\244[\128-\143][\128-\191][\128-\191]",
}

local function is_utf8(text)
  local at = 1
  while at <= #text do
    local last
    for _, pattern in ipairs(UTF8_CHARACTERS) do
      last = last or select(2, text:find(pattern, at))
    end
    if not last then return false end
    at = last + 1
  end
  return true
end

function read.string(state, step, tree, record)
  if not has(state, 2) then return stop_short(state, step, tree) end
  local start = state.at
  local size = state.tvb:range(start, 2):uint()
  if not has(state, 2 + size) then return stop_short(state, step, tree) end
  local value = size > 0 and state.tvb:raw(start + 2, size) or ""
  local is_text = is_utf8(value)
  if not is_text then value = "" end
  if step.secret and not herald.prefs.secrets then value = "***" end
  state.at = start + 2 + size
  -- Wireshark ends a text at a zero byte.
  local item = tree:add(step.field, bytes_from(state, start), (value:gsub("%z", "\226\144\128")))
  if not is_text then item:add_proto_expert_info(NO_UTF8) end
  note(record, step, value)
  return true
end

local function read_all(state, steps, tree, record)
  for _, step in ipairs(steps) do
    if not read_field(state, step, tree, record) then return false end
  end
  return true
end

function read.record(state, step, tree, within)
  state.depth = state.depth + 1
  if state.depth > DEEPEST then
    return stop(state, tree, TOO_MUCH, "Records are nested more than " .. DEEPEST .. " deep")
  end
  local start = state.at
  local record = {shown = {}, within = within}
  local subtree = tree:add(step.field, bytes_from(state, start))
  local goes_on = read_all(state, step.steps, subtree, record)
  subtree:set_len(state.at - start)
  subtree:set_text(step.label .. ": " .. summary(record))
  state.depth = state.depth - 1
  return goes_on
end

local function read_items(state, step, list, count, record)
  if count <= 0 then return true end
  local item = step.item or step.items[record[step.class_from]]
  if not item then return stop(state, list, UNKNOWN_CLASS, "No class has the name " .. tostring(record[step.class_from])) end
  for _ = 1, count do
    -- No item is without bytes.
    if not has(state, 1) then return stop_short(state, step, list) end
    if not read_field(state, item, list, record) then return false end
  end
  return true
end

function read.list(state, step, tree, record)
  local start = state.at
  local count = record[step.count_from]
  if step.count then
    local width = WIDTHS[step.count]
    if not has(state, width) then return stop_short(state, step, tree) end
    count = state.tvb:range(start, width):int()
    state.at = start + width
  end
  note(record, step, count)
  local list = tree:add(step.field, bytes_from(state, start), count)
  if count < 0 then list:add_proto_expert_info(NEGATIVE) end
  local goes_on = read_items(state, step, list, count, record)
  list:set_len(state.at - start)
  return goes_on
end

-- Reads the body that begins at `state.at`; answers what to say about it in one line.
local function dissect_body(state, class, tree)
  local start = state.at
  local record = {shown = {}}
  local plan = classes[class]
  local body = tree:add(plan.field, state.tvb:range(start))
  local has_ended = not read_all(state, plan.steps, body, record)
  local left = state.tvb:len() - state.at
  if left > 0 and not has_ended then
    body:add_proto_expert_info(TRAILING, left .. (left == 1 and " byte is" or " bytes are") .. " left over")
  end
  return summary(record)
end

-- A whole message or frame of a request: its header, then its body.
local function dissect_message(tvb, direction, tree, pinfo)
  local is_request = direction == TO_SERVER
  local header = is_request and HEADER_OF_REQUEST or HEADER_OF_MESSAGE
  if tvb:len() < header then
    tree:add_proto_expert_info(TRUNCATED, "The packet ends within its header")
    pinfo.cols.info = "too short for a header"
    return
  end
  local id = tvb:range(0, 2):int()
  local class = (is_request and requests or messages)[id]
  local id_item = tree:add(id_field, tvb:range(0, 2))
  if is_request then
    local size_item = tree:add(size_field, tvb:range(2, 2))
    if tvb:range(2, 2):int() ~= tvb:len() - header then
      size_item:add_proto_expert_info(WRONG_SIZE, "The body has " .. tvb:len() - header .. " bytes")
    end
  end
  if not class then
    local text = class == false and "no message for id " .. id or "unknown id " .. id
    id_item:add_proto_expert_info(UNKNOWN, text)
    pinfo.cols.info = text
    return
  end
  id_item:append_text(" (" .. class .. ")")
  tree:add(class_field, tvb:range(0, 2), class):set_generated()
  tree:append_text(", " .. class)
  local state = {tvb = tvb, at = header, depth = 0, items = 0}
  pinfo.cols.info = class .. "  " .. dissect_body(state, class, tree)
end

-- A message goes on in the next packet of its direction. The packets come in order once; afterwards Wireshark asks for
-- any of them again.
local begun = {}   -- by direction: the pieces of a message that is not yet whole
local joined = {}  -- by packet number: the whole message, and of how many packets it is

function herald.init()
  begun = {}
  joined = {}
end

local function collect(direction, goes_on, tvb, pinfo)
  if pinfo.visited then return end
  local pieces = begun[direction] or {}
  if not goes_on and #pieces == 0 then return end
  table.insert(pieces, tvb:len() > 1 and tvb:raw(1) or "")
  begun[direction] = goes_on and pieces or nil
  if not goes_on then joined[pinfo.number] = {bytes = table.concat(pieces), packets = #pieces} end
end

function herald.dissector(tvb, pinfo, root)
  local tree = root:add(herald, tvb:range(0))
  pinfo.cols.protocol = "HERALD"
  if tvb:len() == 0 then
    tree:add_proto_expert_info(TRUNCATED, "The packet is empty")
    return
  end
  local direction_byte = tvb:range(0, 1):uint()
  local direction_item = tree:add(direction_field, tvb:range(0, 1))
  if not DIRECTIONS[direction_byte] then
    direction_item:add_proto_expert_info(UNKNOWN, "No direction has the number " .. direction_byte)
    pinfo.cols.info = "unknown direction"
    return
  end
  local direction, goes_on = direction_byte % GOES_ON, direction_byte >= GOES_ON
  pinfo.cols.src = direction == TO_SERVER and "client" or "server"
  pinfo.cols.dst = direction == TO_SERVER and "server" or "client"
  collect(direction, goes_on, tvb, pinfo)
  if goes_on then
    pinfo.cols.info = "a part of a message"
    return
  end
  local whole = joined[pinfo.number]
  if whole then
    tree:add(packets_field, tvb:range(0), whole.packets):set_generated()
    return dissect_message(ByteArray.new(whole.bytes, true):tvb("Joined message"), direction, tree, pinfo)
  end
  if tvb:len() == 1 then
    tree:add_proto_expert_info(TRUNCATED, "The packet ends within its header")
    return
  end
  dissect_message(tvb:range(1):tvb(), direction, tree, pinfo)
end

DissectorTable.get("wtap_encap"):add((wtap_encaps or wtap).USER0, herald)
