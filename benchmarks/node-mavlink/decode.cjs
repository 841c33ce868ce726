'use strict'

// Decodes a capture from memory with node-mavlink, every field of every message, and prints how
// many messages it manages in a second. Usage: decode.cjs CAPTURE [RUNS]
//
// Captures whose name ends with .tlog have a time before each frame.

const fs = require('fs')
const mavlink = require('node-mavlink')

const REGISTRY = Object.assign({}, ...['minimal', 'standard', 'common', 'ardupilotmega', 'uavionix',
  'icarous', 'asluav', 'ualberta', 'storm32'].map(name => mavlink[name].REGISTRY))

function decode(bytes, hasTime) {
  return new Promise((resolve, reject) => {
    const splitter = hasTime ? new mavlink.MavLinkTLogPacketSplitter() : new mavlink.MavLinkPacketSplitter()
    let messages = 0
    splitter.pipe(new mavlink.MavLinkPacketParser())
      .on('data', packet => {
        const clazz = REGISTRY[packet.header.msgid]
        if (clazz === undefined) return
        packet.protocol.data(packet.payload, clazz)
        ++messages
      })
      .on('end', () => resolve(messages))
      .on('error', reject)
    splitter.end(bytes)
  })
}

async function main(capture, runs) {
  const bytes = fs.readFileSync(capture)
  let best = 0
  let messages = 0
  for (let run = 0; run < runs; ++run) {
    const begin = process.hrtime.bigint()
    messages = await decode(bytes, capture.endsWith('.tlog'))
    const seconds = Number(process.hrtime.bigint() - begin) / 1e9
    best = Math.max(best, messages / seconds)
  }
  console.log(JSON.stringify({ capture, messages, runs, messagesPerSecond: Math.round(best) }))
}

if (process.argv.length < 3) {
  console.error('usage: decode.cjs CAPTURE [RUNS]')
  process.exit(1)
}
main(process.argv[2], Number(process.argv[3] ?? 5))
