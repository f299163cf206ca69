-- Cuts what a recording (.pcapng) has into the fields of Tarnwick's frames: start bytes, length, CMD,
-- address, data, CRC. Start bytes and CRC are preferences of the protocol "tarnwick".
--
-- Put this file into Wireshark's folder for personal Lua plugins ("About", "Folders"), then
--   tshark -r RECORDING.pcapng -d rtacser.data,tarnwick
-- or choose "Decode As", "RTAC Serial", "TARNWICK" in the window.

local tarnwick = Proto("tarnwick", "Tarnwick frame")

local fields = {
    start = ProtoField.bytes("tarnwick.start", "Start bytes", base.SPACE),
    length = ProtoField.uint16("tarnwick.length", "Length"),
    cmd = ProtoField.uint8("tarnwick.cmd", "CMD", base.HEX),
    addr = ProtoField.uint16("tarnwick.addr", "Address", base.HEX),
    data = ProtoField.bytes("tarnwick.data", "Data", base.SPACE),
    crc = ProtoField.uint16("tarnwick.crc", "CRC", base.HEX),
    crc_ok = ProtoField.bool("tarnwick.crc.ok", "CRC fits"),
}
tarnwick.fields = fields

tarnwick.prefs.start = Pref.string("Start bytes", "5AA5", "Two bytes in hexadecimal digits")
tarnwick.prefs.crc = Pref.bool("Frames have a CRC", false, "The last two bytes are a CRC-16/MODBUS")

-- CRC-16/MODBUS of a range of bytes.
local function crc16(range)
    local crc = 0xFFFF
    for i = 0, range:len() - 1 do
        crc = bit.bxor(crc, range(i, 1):uint())
        for _ = 1, 8 do
            local low = bit.band(crc, 1)
            crc = bit.rshift(crc, 1)
            if low == 1 then
                crc = bit.bxor(crc, 0xA001)
            end
        end
    end
    return crc
end

-- Bytes of the length field: one, or three in the long form.
local function length_size(buffer)
    local is_long = buffer:len() > 5 and buffer(2, 1):uint() == 0 and buffer(5, 1):uint() == 0x10
    return is_long and 3 or 1
end

local function add_payload(tree, payload)
    tree:add(fields.cmd, payload(0, 1))
    if payload:len() >= 3 then
        tree:add(fields.addr, payload(1, 2))
    end
    if payload:len() > 3 then
        tree:add(fields.data, payload(3))
    end
end

local function add_crc(tree, payload, crc)
    tree:add_le(fields.crc, crc)
    tree:add(fields.crc_ok, crc, crc:le_uint() == crc16(payload))
end

function tarnwick.dissector(buffer, pinfo, tree)
    local start = ByteArray.new(tarnwick.prefs.start)
    if start:len() ~= 2 or buffer:len() < 4 or buffer(0, 2):bytes() ~= start then
        return 0
    end
    local size = length_size(buffer)
    local length = size == 3 and buffer(3, 2):uint() or buffer(2, 1):uint()
    local content = 2 + size
    if length == 0 or buffer:len() < content + length then
        return 0
    end
    pinfo.cols.protocol = "Tarnwick"
    local branch = tree:add(tarnwick, buffer(0, content + length))
    branch:add(fields.start, buffer(0, 2))
    branch:add(fields.length, size == 3 and buffer(3, 2) or buffer(2, 1))
    local has_crc = tarnwick.prefs.crc and length > 2
    local payload = buffer(content, has_crc and length - 2 or length)
    add_payload(branch, payload)
    if has_crc then
        add_crc(branch, payload, buffer(content + length - 2, 2))
    end
    return content + length
end

DissectorTable.get("rtacser.data"):add_for_decode_as(tarnwick)
