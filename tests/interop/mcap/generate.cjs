'use strict'

// Writes MCAP files with @mcap/core to plain.mcap, zstd.mcap, lz4.mcap and unchunked.mcap, and
// their messages, one a line, to expected.txt. Usage: generate.cjs FOLDER

const { execFileSync } = require('child_process')
const fs = require('fs')
const path = require('path')
const { McapWriter } = require('@mcap/core')

const MESSAGES = 300
const COMPRESSORS = { zstd: ['zstd', ['-q', '-c']], lz4: ['lz4', ['-q', '-c']] }

/** What @mcap/core writes to. */
class Memory {
  pieces = []
  size = 0n

  async write(piece) {
    this.pieces.push(Buffer.from(piece))
    this.size += BigInt(piece.byteLength)
  }

  position() {
    return this.size
  }
}

function compressWith(compression) {
  const [program, options] = COMPRESSORS[compression]
  return (data) => ({ compression, compressedData: execFileSync(program, options, { input: data }) })
}

let state = 1

function nextRandom() {
  state = (Math.imul(state, 1664525) + 1013904223) >>> 0
  return state >>> 8
}

function makeMessages() {
  const messages = []
  for (let sequence = 0; sequence < MESSAGES; ++sequence) {
    const data = Buffer.alloc(nextRandom() % 500)
    for (let i = 0; i < data.length; ++i) data[i] = nextRandom() % (sequence % 2 === 0 ? 4 : 256)
    messages.push({ channel: nextRandom() % 3, sequence, data })
  }
  return messages
}

const logTimeOf = (sequence) => 1700000000000000000n + BigInt(sequence) * 1000001n

async function writeFile(messages, options) {
  const writable = new Memory()
  const writer = new McapWriter({ writable, chunkSize: 8000, ...options })
  await writer.start({ profile: '', library: 'interop' })
  const channels = []
  for (const topic of ['/one', '/two', '/three']) {
    const schemaId = await writer.registerSchema({
      name: 'pkg' + topic.replace('/', '.'),
      encoding: 'protobuf',
      data: Buffer.from('schema of ' + topic)
    })
    channels.push(await writer.registerChannel({
      schemaId, topic, messageEncoding: 'protobuf', metadata: new Map([['topic', topic]])
    }))
  }
  for (const { channel, sequence, data } of messages) {
    const logTime = logTimeOf(sequence)
    await writer.addMessage({
      channelId: channels[channel], sequence, logTime, publishTime: logTime, data
    })
    if (sequence === 100) {
      await writer.addAttachment({
        name: 'note', mediaType: 'text/plain', logTime, createTime: logTime, data: Buffer.alloc(99)
      })
      await writer.addMetadata({ name: 'more', metadata: new Map([['a', 'b']]) })
    }
  }
  await writer.end()
  return Buffer.concat(writable.pieces)
}

async function main() {
  const folder = process.argv[2]
  const messages = makeMessages()
  const kinds = {
    plain: {},
    unchunked: { useChunks: false },
    zstd: { compressChunk: compressWith('zstd') },
    lz4: { compressChunk: compressWith('lz4') }
  }
  for (const [name, options] of Object.entries(kinds))
    fs.writeFileSync(path.join(folder, name + '.mcap'), await writeFile(messages, options))
  const lines = messages.map(({ channel, sequence, data }) =>
    [['/one', '/two', '/three'][channel], sequence, logTimeOf(sequence), data.toString('hex')]
      .join(' '))
  fs.writeFileSync(path.join(folder, 'expected.txt'), lines.join('\n'))
}

main()
