'use strict'

// Writes frames of every message of the common and ardupilotmega dialects, made by node-mavlink,
// to frames.bin, and what their fields hold to expected.json. Usage: generate.cjs FOLDER
//
// Values are given as texts: integers in digits, numbers with a point by the bits of the double
// ("0x3ff8000000000000"), characters and strings as they are.

const { createHash } = require('crypto')
const fs = require('fs')
const path = require('path')
const mavlink = require('node-mavlink')

const LIMITS = {
  int8_t: [-128n, 127n],
  uint8_t: [0n, 255n],
  uint8_t_mavlink_version: [0n, 255n],
  int16_t: [-32768n, 32767n],
  uint16_t: [0n, 65535n],
  int32_t: [-2147483648n, 2147483647n],
  uint32_t: [0n, 4294967295n],
  int64_t: [-(1n << 63n), (1n << 63n) - 1n],
  uint64_t: [0n, (1n << 64n) - 1n]
}
const FLOATS = {
  float: [-3.4028234663852886e38, 3.4028234663852886e38],
  double: [-Number.MAX_VALUE, Number.MAX_VALUE]
}
const SPECIAL = [NaN, Infinity, -Infinity, -0, 1.401298464324817e-45]
const PATTERNS = ['ordinary', 'least', 'most', 'zero', 'special']
const KEY = createHash('sha256').update('interop').digest()

let state = 1n

/** The same numbers in each run, 63 bits. */
function nextRandom() {
  state = (state * 6364136223846793005n + 1442695040888963407n) & ((1n << 64n) - 1n)
  return state >> 1n
}

function integerOf(type, pattern) {
  const [least, most] = LIMITS[type]
  if (pattern === 'least') return least
  if (pattern === 'most') return most
  if (pattern === 'zero') return 0n
  // Neither limits nor small numbers, which may stand for "no value".
  const span = most - least
  return least + span / 2n + 11n + (nextRandom() % (span / 4n))
}

function floatOf(type, pattern, index) {
  if (pattern === 'least') return FLOATS[type][0]
  if (pattern === 'most') return FLOATS[type][1]
  if (pattern === 'zero') return 0
  if (pattern === 'special') return SPECIAL[index % SPECIAL.length]
  const value = Number(nextRandom() % 1000003n) / 64 + 1.5
  return type === 'float' ? Math.fround(value) : value + 1e-9
}

function stringOf(length, pattern) {
  if (pattern === 'zero') return ''
  const size = pattern === 'most' ? length : Math.ceil(length / 2)
  return Array.from({ length: size }, (_, i) => String.fromCharCode(0x41 + ((i * 7) % 26))).join('')
}

function bitsText(number) {
  const view = new DataView(new ArrayBuffer(8))
  view.setFloat64(0, number)
  return '0x' + view.getBigUint64(0).toString(16).padStart(16, '0')
}

/** One element: what the encoder takes, and its text. */
function elementOf(type, pattern, index) {
  if (type === 'char') return { value: 0x51, text: 'Q' }
  if (type in FLOATS) {
    const value = floatOf(type, pattern, index)
    return { value, text: bitsText(value) }
  }
  const value = integerOf(type, pattern)
  return { value: type.includes('64') ? value : Number(value), text: value.toString() }
}

/** Fills the field of the message; gives the texts of its elements. */
function fill(message, field, pattern) {
  const type = field.type.replace('[]', '')
  if (field.type === 'char[]') {
    message[field.name] = stringOf(field.length, pattern)
    return message[field.name]
  }
  const count = field.type.endsWith('[]') ? field.length : 1
  const elements = Array.from({ length: count }, (_, i) => elementOf(type, pattern, i))
  message[field.name] = field.type.endsWith('[]') ? elements.map(e => e.value) : elements[0].value
  return elements.map(e => e.text)
}

const frames = []
const expected = []
let sequence = 0

/** Adds the message as a frame of that version; texts: the fields by their names on the wire. */
function add(message, version, pattern, texts, extra = {}) {
  const clazz = message.constructor
  const protocol = version === 1
    ? new mavlink.MavLinkProtocolV1(7, 9)
    : new mavlink.MavLinkProtocolV2(7, 9, version === 'signed' ? mavlink.MavLinkProtocolV2.IFLAG_SIGNED : 0)
  let frame = protocol.serialize(message, sequence)
  if (version === 'signed') frame = protocol.sign(frame, 3, KEY, Date.UTC(2026, 0, 1))
  sequence = (sequence + 1) & 0xff
  frames.push(frame)
  const extensions = clazz.FIELDS.filter(field => field.extension).map(field => field.source)
  expected.push({ name: clazz.MSG_NAME, version: String(version), pattern, fields: texts, extensions, ...extra })
}

function addGenerated(clazz, version, pattern) {
  const message = new clazz()
  const texts = {}
  for (const field of clazz.FIELDS) texts[field.source] = fill(message, field, pattern)
  add(message, version, pattern, texts)
}

/** A heartbeat with named values and bits, as the encoder's own names have them. */
function addHeartbeat() {
  const { Heartbeat, MavType, MavAutopilot, MavModeFlag, MavState } = mavlink.minimal
  const message = new Heartbeat()
  message.type = MavType.QUADROTOR
  message.autopilot = MavAutopilot.ARDUPILOTMEGA
  message.baseMode = MavModeFlag.SAFETY_ARMED | MavModeFlag.GUIDED_ENABLED
  message.customMode = 4
  message.systemStatus = MavState.ACTIVE
  message.mavlinkVersion = 3
  const symbols = {
    type: 'MAV_TYPE_QUADROTOR',
    autopilot: 'MAV_AUTOPILOT_ARDUPILOTMEGA',
    system_status: 'MAV_STATE_ACTIVE',
    'base_mode.MAV_MODE_FLAG_SAFETY_ARMED': 'true',
    'base_mode.MAV_MODE_FLAG_GUIDED_ENABLED': 'true',
    'base_mode.MAV_MODE_FLAG_AUTO_ENABLED': 'false'
  }
  const texts = {
    type: [String(message.type)],
    autopilot: [String(message.autopilot)],
    base_mode: [String(message.baseMode)],
    custom_mode: ['4'],
    system_status: [String(message.systemStatus)],
    mavlink_version: ['3']
  }
  for (const version of [1, 2, 'signed']) add(message, version, 'ordinary', texts, { symbols })
}

addHeartbeat()
const registry = { ...mavlink.minimal.REGISTRY, ...mavlink.common.REGISTRY, ...mavlink.ardupilotmega.REGISTRY }
for (const clazz of Object.values(registry)) {
  for (const pattern of PATTERNS) {
    addGenerated(clazz, 2, pattern)
    if (clazz.MSG_ID < 256) addGenerated(clazz, 1, pattern)
  }
  addGenerated(clazz, 'signed', 'ordinary')
}

const folder = process.argv[2]
fs.writeFileSync(path.join(folder, 'frames.bin'), Buffer.concat(frames))
fs.writeFileSync(path.join(folder, 'expected.json'), JSON.stringify(expected))
