#include "SharedStrings.h"

#include <algorithm>

#include "Error.h"

namespace workbook::biff {
namespace {

constexpr uint8_t kHighBytes = 0x01;
constexpr uint8_t kPhonetic = 0x04;
constexpr uint8_t kRich = 0x08;
constexpr size_t kRunSize = 4;
constexpr size_t kMaxBuckets = 128;
constexpr size_t kMinBucketSize = 8;

// Reads the SST body across its CONTINUE records. Fields run on from one
// record into the next; character data does too, but each CONTINUE that
// breaks it starts with a new flags byte that says how the rest is stored.
class ContinuedReader {
 public:
  explicit ContinuedReader(std::vector<const Bytes*> chunks) : chunks_(std::move(chunks)) {}

  bool AtEnd() {
    SkipExhausted();
    return chunk_ == chunks_.size();
  }

  uint8_t U8() {
    SkipExhausted();
    if (chunk_ == chunks_.size()) throw Error("damaged shared string table: a string runs past its end");
    return (*chunks_[chunk_])[offset_++];
  }
  uint16_t U16() {
    uint16_t low = U8();
    return static_cast<uint16_t>(low | U8() << 8);
  }
  uint32_t U32() {
    uint32_t low = U16();
    return low | static_cast<uint32_t>(U16()) << 16;
  }
  Bytes Take(size_t count) {
    Bytes bytes;
    for (size_t i = 0; i < count; ++i) bytes.push_back(U8());
    return bytes;
  }

  std::u16string Characters(size_t count, bool highBytes) {
    std::u16string text;
    for (size_t i = 0; i < count; ++i) {
      if (chunk_ < chunks_.size() && offset_ == chunks_[chunk_]->size()) {
        ++chunk_;
        offset_ = 0;
        highBytes = U8() & kHighBytes;
      }
      text += static_cast<char16_t>(highBytes ? U16() : U8());
    }
    return text;
  }

 private:
  void SkipExhausted() {
    while (chunk_ < chunks_.size() && offset_ == chunks_[chunk_]->size()) {
      ++chunk_;
      offset_ = 0;
    }
  }

  std::vector<const Bytes*> chunks_;
  size_t chunk_ = 0;
  size_t offset_ = 0;
};

// Writes the SST body, opening CONTINUE records as each one fills, and notes
// where every bucket's first string starts.
class ContinuedWriter {
 public:
  explicit ContinuedWriter(size_t streamPosition) : recordStart_(streamPosition) {
    records_.push_back({kSst, {}});
  }

  Bytes& current() { return records_.back().data; }
  size_t room() { return kMaxRecordData - current().size(); }
  size_t streamOffset() { return recordStart_ + kRecordHeaderSize + current().size(); }
  size_t recordOffset() { return kRecordHeaderSize + current().size(); }

  void NewContinue() {
    recordStart_ += kRecordHeaderSize + current().size();
    records_.push_back({kContinue, {}});
  }

  std::vector<Record> Finish() { return std::move(records_); }

 private:
  std::vector<Record> records_;
  size_t recordStart_;
};

}  // namespace

SharedStrings SharedStrings::Parse(const Record& sst, const std::vector<Record>& continues) {
  std::vector<const Bytes*> chunks{&sst.data};
  for (const Record& record : continues) chunks.push_back(&record.data);
  ContinuedReader reader(chunks);
  reader.U32();
  uint32_t unique = reader.U32();

  SharedStrings table;
  for (uint32_t i = 0; i < unique && !reader.AtEnd(); ++i) {
    Entry entry;
    uint16_t count = reader.U16();
    uint8_t flags = reader.U8();
    if (flags & kRich) entry.runCount = reader.U16();
    uint32_t phoneticSize = flags & kPhonetic ? reader.U32() : 0;
    entry.text = reader.Characters(count, flags & kHighBytes);
    entry.runs = reader.Take(size_t{entry.runCount} * kRunSize);
    entry.phonetic = reader.Take(phoneticSize);
    if (entry.runCount == 0 && entry.phonetic.empty()) table.plainIndex_.emplace(entry.text, i);
    table.entries_.push_back(std::move(entry));
  }
  return table;
}

const std::u16string& SharedStrings::Text(uint32_t index) const {
  static const std::u16string empty;
  return index < entries_.size() ? entries_[index].text : empty;
}

uint32_t SharedStrings::Add(const std::u16string& text) {
  auto [found, inserted] = plainIndex_.try_emplace(text, static_cast<uint32_t>(entries_.size()));
  if (inserted) entries_.push_back({text, 0, {}, {}});
  return found->second;
}

SharedStrings::Written SharedStrings::Write(uint32_t totalReferences, size_t streamPosition) const {
  size_t bucketSize = std::max(kMinBucketSize, (entries_.size() + kMaxBuckets - 1) / kMaxBuckets);
  Record extSst{kExtSst, {}};
  PutU16(extSst.data, static_cast<uint16_t>(bucketSize));

  ContinuedWriter writer(streamPosition);
  PutU32(writer.current(), totalReferences);
  PutU32(writer.current(), static_cast<uint32_t>(entries_.size()));

  for (size_t i = 0; i < entries_.size(); ++i) {
    const Entry& entry = entries_[i];
    bool highBytes = NeedsHighBytes(entry.text);
    size_t unitSize = highBytes ? 2 : 1;
    Bytes header;
    PutU16(header, static_cast<uint16_t>(entry.text.size()));
    PutU8(header, static_cast<uint8_t>((highBytes ? kHighBytes : 0) | (entry.runCount ? kRich : 0) |
                                       (entry.phonetic.empty() ? 0 : kPhonetic)));
    if (entry.runCount) PutU16(header, entry.runCount);
    if (!entry.phonetic.empty()) PutU32(header, static_cast<uint32_t>(entry.phonetic.size()));

    // A string's header never breaks, nor does its first character follow it
    // into the next record.
    if (writer.room() < header.size() + (entry.text.empty() ? 0 : unitSize)) writer.NewContinue();
    if (i % bucketSize == 0) {
      PutU32(extSst.data, static_cast<uint32_t>(writer.streamOffset()));
      PutU16(extSst.data, static_cast<uint16_t>(writer.recordOffset()));
      PutU16(extSst.data, 0);
    }
    PutBytes(writer.current(), header);

    for (size_t done = 0; done < entry.text.size();) {
      size_t fit = std::min(writer.room() / unitSize, entry.text.size() - done);
      if (fit == 0) {
        writer.NewContinue();
        PutU8(writer.current(), highBytes ? kHighBytes : 0);
        continue;
      }
      PutCharacters(writer.current(), entry.text.substr(done, fit), highBytes);
      done += fit;
    }
    for (size_t run = 0; run < entry.runs.size(); run += kRunSize) {
      if (writer.room() < kRunSize) writer.NewContinue();
      writer.current().insert(writer.current().end(), entry.runs.begin() + run,
                              entry.runs.begin() + run + kRunSize);
    }
    for (size_t done = 0; done < entry.phonetic.size();) {
      if (writer.room() == 0) writer.NewContinue();
      size_t fit = std::min(writer.room(), entry.phonetic.size() - done);
      writer.current().insert(writer.current().end(), entry.phonetic.begin() + done,
                              entry.phonetic.begin() + done + fit);
      done += fit;
    }
  }
  return {writer.Finish(), std::move(extSst)};
}

}  // namespace workbook::biff
