#include "platform/ByteLookUp.h"

#include <cstring>

#if defined(__x86_64__)
#include <immintrin.h>
#endif

namespace dyeworks {

namespace {

/// Four bytes are read before the first is written: none waits for another.
void byBytes(std::span<std::uint8_t> bytes, const ByteTable& table) {
    // For all that the compiler knows, the table that was given lies among the bytes.
    const ByteTable own = table;
    std::size_t i = 0;
    for (; i + 4 <= bytes.size(); i += 4) {
        const std::uint8_t made[] = {own[bytes[i]], own[bytes[i + 1]], own[bytes[i + 2]], own[bytes[i + 3]]};
        std::memcpy(&bytes[i], made, sizeof made);
    }
    for (; i < bytes.size(); ++i)
        bytes[i] = own[bytes[i]];
}

#if defined(__x86_64__)

/// One instruction looks 32 bytes up in a row of 16 by their lower halves, and gives 0 for those that are
/// negative. Each row is kept as its difference to the row before. A byte counts down by 16 from row to row:
/// until it is negative the differences add up, and what they make is what its own row has.
[[gnu::target("avx2")]] void byRowsOf16(std::span<std::uint8_t> bytes, const ByteTable& table) {
    __m256i rows[16];
    for (std::ptrdiff_t row = 0; row < 16; ++row) {
        rows[row] = _mm256_broadcastsi128_si256(
            _mm_loadu_si128(reinterpret_cast<const __m128i*>(table.data() + 16 * row)));
    }
    for (int row = 15; row > 0; --row) {
        if (row != 8)
            rows[row] = _mm256_xor_si256(rows[row], rows[row - 1]);
    }
    const __m256i next = _mm256_set1_epi8(16);
    std::uint8_t* at = bytes.data();
    std::uint8_t* const end = at + bytes.size();
    for (; end - at >= 32; at += 32) {
        // Bytes from 128 on are negative in the first half of the rows, the others in the second.
        __m256i lower = _mm256_loadu_si256(reinterpret_cast<const __m256i*>(at));
        __m256i upper = _mm256_xor_si256(lower, _mm256_set1_epi8(-128));
        __m256i made = _mm256_setzero_si256();
        for (int row = 0; row < 8; ++row) {
            made = _mm256_xor_si256(made, _mm256_shuffle_epi8(rows[row], lower));
            made = _mm256_xor_si256(made, _mm256_shuffle_epi8(rows[row + 8], upper));
            lower = _mm256_subs_epi8(lower, next);
            upper = _mm256_subs_epi8(upper, next);
        }
        _mm256_storeu_si256(reinterpret_cast<__m256i*>(at), made);
    }
    byBytes({at, end}, table);
}

/// One instruction looks 64 bytes up in a half of the table: the uppermost bit says in which.
[[gnu::target("avx512f,avx512bw,avx512vbmi")]] void byHalves(std::span<std::uint8_t> bytes,
                                                             const ByteTable& table) {
    const __m512i first = _mm512_loadu_si512(table.data());
    const __m512i second = _mm512_loadu_si512(table.data() + 64);
    const __m512i third = _mm512_loadu_si512(table.data() + 128);
    const __m512i fourth = _mm512_loadu_si512(table.data() + 192);
    std::uint8_t* at = bytes.data();
    std::uint8_t* const end = at + bytes.size();
    for (; end - at >= 64; at += 64) {
        const __m512i was = _mm512_loadu_si512(at);
        const __m512i lower = _mm512_permutex2var_epi8(first, was, second);
        const __m512i upper = _mm512_permutex2var_epi8(third, was, fourth);
        _mm512_storeu_si512(at, _mm512_mask_blend_epi8(_mm512_movepi8_mask(was), lower, upper));
    }
    byBytes({at, end}, table);
}

#endif

} // namespace

std::vector<ByteLookUp> byteLookUps() {
    std::vector<ByteLookUp> ways;
#if defined(__x86_64__)
    if (__builtin_cpu_supports("avx512bw") && __builtin_cpu_supports("avx512vbmi"))
        ways.push_back(byHalves);
    if (__builtin_cpu_supports("avx2"))
        ways.push_back(byRowsOf16);
#endif
    ways.push_back(byBytes);
    return ways;
}

void lookUp(std::span<std::uint8_t> bytes, const ByteTable& table) {
    static const ByteLookUp best = byteLookUps().front();
    best(bytes, table);
}

} // namespace dyeworks
