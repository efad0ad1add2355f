#include "CompoundFileCheck.h"

#include <vector>

#include "Error.h"

namespace workbook {
namespace {

constexpr uint32_t kEndOfChain = 0xFFFFFFFE;
constexpr uint32_t kFreeSector = 0xFFFFFFFF;
constexpr size_t kHeaderSize = 512;
constexpr size_t kHeaderDifatEntries = 109;
constexpr size_t kDirectoryEntrySize = 128;
constexpr uint8_t kStorageEntry = 1;
constexpr uint8_t kStreamEntry = 2;
constexpr uint8_t kRootEntry = 5;
constexpr uint32_t kNoEntry = 0xFFFFFFFF;

[[noreturn]] void Damaged(const char* what) { throw Error(std::string("damaged compound file: ") + what); }

// Sectors of one kind (regular or mini) and which chain already holds each.
class Allocation {
 public:
  Allocation(std::vector<uint32_t> table, size_t sectorCount)
      : table_(std::move(table)), owned_(sectorCount, false) {}

  void Claim(uint32_t sector) {
    if (sector >= owned_.size()) Damaged("a sector lies outside the file");
    if (owned_[sector]) Damaged("two streams share a sector");
    owned_[sector] = true;
  }

  // Claims every sector of the chain from `start` and returns them in order.
  std::vector<uint32_t> Chain(uint32_t start) {
    std::vector<uint32_t> sectors;
    for (uint32_t sector = start; sector != kEndOfChain;) {
      Claim(sector);
      sectors.push_back(sector);
      if (sector >= table_.size()) Damaged("a chain leaves the allocation table");
      sector = table_[sector];
    }
    return sectors;
  }

 private:
  std::vector<uint32_t> table_;
  std::vector<bool> owned_;
};

class Image {
 public:
  Image(const Bytes& bytes, uint16_t shift) : bytes_(bytes), size_(size_t{1} << shift) {}

  size_t sectorSize() const { return size_; }
  size_t sectorCount() const {
    return bytes_.size() <= kHeaderSize ? 0 : (bytes_.size() - kHeaderSize + size_ - 1) / size_;
  }

  uint32_t Entry(uint32_t sector, size_t index) const {
    size_t at = kHeaderSize + size_t{sector} * size_ + index * 4;
    return at + 4 <= bytes_.size() ? GetU32(bytes_, at) : kFreeSector;
  }
  Bytes Sectors(const std::vector<uint32_t>& chain) const {
    Bytes data;
    for (uint32_t sector : chain) {
      size_t at = kHeaderSize + size_t{sector} * size_;
      size_t end = std::min(at + size_, bytes_.size());
      data.insert(data.end(), bytes_.begin() + at, bytes_.begin() + end);
    }
    return data;
  }

 private:
  const Bytes& bytes_;
  size_t size_;
};

// The directory is a tree of entries linked by index (left, right, child).
// Each entry must be reached once, from the root, and be a storage or a
// stream; libgsf does not guard against loops and shared entries.
void CheckDirectoryTree(const Bytes& directory) {
  size_t count = directory.size() / kDirectoryEntrySize;
  if (count == 0 || directory[0x42] != kRootEntry) Damaged("the directory has no root");
  std::vector<bool> reached(count, false);
  // libgsf follows the root's sibling links too; a real root has none.
  std::vector<uint32_t> pending{GetU32(directory, 0x44), GetU32(directory, 0x48), GetU32(directory, 0x4C)};
  reached[0] = true;
  while (!pending.empty()) {
    uint32_t entry = pending.back();
    pending.pop_back();
    if (entry == kNoEntry) continue;
    if (entry >= count || reached[entry]) Damaged("the directory's entries do not form a tree");
    reached[entry] = true;
    size_t at = size_t{entry} * kDirectoryEntrySize;
    uint8_t type = directory[at + 0x42];
    if (type != kStorageEntry && type != kStreamEntry) Damaged("a directory entry has an unknown type");
    pending.push_back(GetU32(directory, at + 0x44));
    pending.push_back(GetU32(directory, at + 0x48));
    if (type == kStorageEntry) pending.push_back(GetU32(directory, at + 0x4C));
  }
}

}  // namespace

void CheckCompoundFileAllocation(const Bytes& bytes) {
  if (bytes.size() < kHeaderSize) Damaged("the header is cut short");
  uint16_t shift = GetU16(bytes, 0x1E);
  uint16_t miniShift = GetU16(bytes, 0x20);
  if ((shift != 9 && shift != 12) || miniShift != 6) Damaged("unknown sector sizes");
  Image image(bytes, shift);
  size_t perSector = image.sectorSize() / 4;
  size_t sectorCount = image.sectorCount();

  // The FAT's own sectors, listed in the header and in the DIFAT chain.
  std::vector<uint32_t> fatSectors;
  std::vector<bool> seen(sectorCount, false);
  auto claim = [&](uint32_t sector) {
    if (sector >= sectorCount) Damaged("a sector lies outside the file");
    if (seen[sector]) Damaged("two structures share a sector");
    seen[sector] = true;
  };
  uint32_t fatCount = GetU32(bytes, 0x2C);
  for (size_t i = 0; i < kHeaderDifatEntries && fatSectors.size() < fatCount; ++i) {
    fatSectors.push_back(GetU32(bytes, 0x4C + 4 * i));
  }
  uint32_t difat = GetU32(bytes, 0x44);
  for (size_t steps = 0; fatSectors.size() < fatCount; ++steps) {
    if (difat == kEndOfChain || steps > sectorCount) Damaged("the sector allocation table is cut short");
    claim(difat);
    for (size_t i = 0; i + 1 < perSector && fatSectors.size() < fatCount; ++i)
      fatSectors.push_back(image.Entry(difat, i));
    difat = image.Entry(difat, perSector - 1);
  }
  std::vector<uint32_t> fat;
  for (uint32_t sector : fatSectors) {
    claim(sector);
    for (size_t i = 0; i < perSector; ++i) fat.push_back(image.Entry(sector, i));
  }

  Allocation sectors(fat, sectorCount);
  for (size_t i = 0; i < sectorCount; ++i) {
    if (seen[i]) sectors.Claim(static_cast<uint32_t>(i));
  }
  Bytes directory = image.Sectors(sectors.Chain(GetU32(bytes, 0x30)));
  CheckDirectoryTree(directory);
  uint32_t cutoff = GetU32(bytes, 0x38);
  uint32_t miniFatStart = GetU32(bytes, 0x3C);
  Bytes miniFatBytes = GetU32(bytes, 0x40) ? image.Sectors(sectors.Chain(miniFatStart)) : Bytes();
  std::vector<uint32_t> miniFat;
  for (size_t at = 0; at + 4 <= miniFatBytes.size(); at += 4) miniFat.push_back(GetU32(miniFatBytes, at));

  size_t miniSectorCount = 0;
  std::vector<std::pair<uint32_t, uint32_t>> miniStreams;  // start, size
  for (size_t at = 0; at + kDirectoryEntrySize <= directory.size(); at += kDirectoryEntrySize) {
    uint8_t type = directory[at + 0x42];
    uint32_t start = GetU32(directory, at + 0x74);
    uint32_t size = GetU32(directory, at + 0x78);
    if (type == kRootEntry) {
      if (size > 0) miniSectorCount = sectors.Chain(start).size() * (image.sectorSize() >> miniShift);
    } else if (type == kStreamEntry && size > 0) {
      if (size >= cutoff) {
        sectors.Chain(start);
      } else {
        miniStreams.emplace_back(start, size);
      }
    }
  }
  Allocation miniSectors(miniFat, miniSectorCount);
  for (auto [start, size] : miniStreams) miniSectors.Chain(start);
}

}  // namespace workbook
