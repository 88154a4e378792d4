// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Changes archives member by member and seals their headers again. By bytes alone nearly every
// change ends at a wrong checksum, or moves all that follows off its block.

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <numeric>
#include <random>
#include <string>
#include <vector>

extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t* data, std::size_t size, std::size_t most);

namespace {

constexpr std::size_t kBlock = 512;
constexpr std::size_t kSizeAt = 124;
constexpr std::size_t kSizeDigits = 11;
constexpr std::size_t kChecksumAt = 148;

using Bytes = std::vector<std::uint8_t>;

std::size_t padded(std::size_t size) {
  return (size + kBlock - 1) / kBlock * kBlock;
}

/// A member as the bytes of its header and of what it holds.
struct Member {
  Bytes header;
  Bytes held;
};

std::vector<Member> membersOf(const std::uint8_t* data, std::size_t size) {
  std::vector<Member> members;
  for (std::size_t at = 0; at + kBlock <= size;) {
    const std::uint8_t* const header = data + at;
    const std::string digits(header + kSizeAt, header + kSizeAt + kSizeDigits);
    at += kBlock;
    const std::size_t told = std::strtoull(digits.c_str(), nullptr, 8);
    const std::size_t held = std::min(told, size - at);
    members.push_back({Bytes(header, header + kBlock), Bytes(data + at, data + at + held)});
    at = std::min(padded(at + held), size);
  }
  return members;
}

void change(Bytes& bytes, std::size_t most) {
  const std::size_t size = bytes.size();
  bytes.resize(std::max(most, size));
  bytes.resize(LLVMFuzzerMutate(bytes.data(), size, bytes.size()));
}

void tellSize(Member& member) {
  char digits[kSizeDigits + 1];
  std::snprintf(digits, sizeof digits, "%011zo", member.held.size());
  std::copy(digits, digits + kSizeDigits, member.header.begin() + kSizeAt);
}

void seal(Bytes& header) {
  const auto place = header.begin() + kChecksumAt;
  std::fill_n(place, 8, ' ');
  char digits[8];
  std::snprintf(digits, sizeof digits, "%06o", std::accumulate(header.begin(), header.end(), 0U));
  std::copy_n(digits, 7, place);
}

}  // namespace

extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size,
                                               std::size_t most, unsigned seed) {
  std::minstd_rand random(seed);
  std::vector<Member> members = membersOf(data, size);
  if (members.empty() || random() % 8 == 0) return LLVMFuzzerMutate(data, size, most);

  Member& changed = members[random() % members.size()];
  switch (random() % 8) {
    case 0:
      members.push_back(changed);
      break;
    case 1:
      std::swap(changed, members[random() % members.size()]);
      break;
    case 2:
    case 3:
    case 4:
      change(changed.header, kBlock);
      changed.header.resize(kBlock);
      seal(changed.header);
      break;
    default:
      change(changed.held, changed.held.size() + 2 * kBlock);
      tellSize(changed);
      seal(changed.header);
  }

  Bytes whole;
  for (const Member& member : members) {
    whole.insert(whole.end(), member.header.begin(), member.header.end());
    whole.insert(whole.end(), member.held.begin(), member.held.end());
    whole.resize(padded(whole.size()));
  }
  whole.resize(std::min(whole.size(), most));
  std::copy(whole.begin(), whole.end(), data);
  return whole.size();
}
