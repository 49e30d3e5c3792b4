#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <type_traits>
#include <utility>

#include "lanes/level.h"

// Numbers that are worked on at once, by the compiler's own vector types: the text is the same for
// every processor. Every function is inlined into the kernel that calls it, which is compiled for
// one level: none may be left over for the linker, which knows no levels and takes one for all.

namespace lanes {

/// `numbers` numbers in as many registers of the level as they need. While one register waits for a
/// result, the next is worked on.
template <typename Type, int numbers, typename Level = ThisLevel>
struct Lanes {
    using Number = Type;
    using Register [[gnu::vector_size(Level::registerBytes)]] = Type;

    static constexpr int count = numbers;
    static constexpr int perRegister = static_cast<int>(Level::registerBytes / sizeof(Type));
    static constexpr int registers = count / perRegister;
    static_assert(registers * perRegister == count);

    Register part[std::size_t{count} / std::size_t{perRegister}];
};

/// As many numbers as one register of the level holds.
template <typename Type>
inline constexpr int numbersPerRegister = static_cast<int>(ThisLevel::registerBytes / sizeof(Type));

template <std::size_t bytes>
using IntegerOf = std::conditional_t<
    bytes == 1, std::int8_t,
    std::conditional_t<bytes == 2, std::int16_t,
                       std::conditional_t<bytes == 4, std::int32_t, std::int64_t>>>;

/// All bits of a lane set where something holds, none elsewhere.
template <typename Some>
using MaskOf = Lanes<IntegerOf<sizeof(typename Some::Number)>, Some::count>;

template <typename Number>
using UnsignedOf =
    typename std::conditional_t<std::is_integral_v<Number>, std::make_unsigned<Number>,
                                std::type_identity<Number>>::type;

/// Whole numbers without their signs: their sums may go round.
template <typename Number, typename Register>
[[gnu::always_inline]] inline auto asBits(Register numbers) {
    using Bits [[gnu::vector_size(sizeof(Register))]] = UnsignedOf<Number>;
    return reinterpret_cast<Bits>(numbers);
}
template <typename Register, typename Bits>
[[gnu::always_inline]] inline Register asNumbers(Bits bits) {
    return reinterpret_cast<Register>(bits);
}

/// Applies an operation to the registers of `a` and of the others, one after the other.
template <typename Result, typename Operation, typename... Others>
[[gnu::always_inline]] inline Result registerwise(Operation operation, const Others&... others) {
    Result result;
    for (int i = 0; i < Result::registers; ++i) {
        result.part[i] = operation(others.part[i]...);
    }
    return result;
}

template <typename Some>
[[gnu::always_inline]] inline Some all(typename Some::Number number) {
    Some result;
    for (auto& part : result.part) {
        part = number - typename Some::Register{};  // a sum would lose the sign of -0
    }
    return result;
}

template <typename Some>
[[gnu::always_inline]] inline Some load(const typename Some::Number* numbers) {
    // Register by register: compilers copy a whole struct in pieces of their own.
    Some result;
    for (int i = 0; i < Some::registers; ++i) {
        std::memcpy(&result.part[i], numbers + i * Some::perRegister, sizeof result.part[i]);
    }
    return result;
}

template <typename Number, int count>
[[gnu::always_inline]] inline void store(const Lanes<Number, count>& lanes, Number* numbers) {
    using Some = Lanes<Number, count>;
    for (int i = 0; i < Some::registers; ++i) {
        std::memcpy(numbers + i * Some::perRegister, &lanes.part[i], sizeof lanes.part[i]);
    }
}

template <typename Number, int count>
[[gnu::always_inline]] inline Lanes<Number, count> operator+(const Lanes<Number, count>& a,
                                                             const Lanes<Number, count>& b) {
    return registerwise<Lanes<Number, count>>(
        [](auto x, auto y) {
            return asNumbers<decltype(x)>(asBits<Number>(x) + asBits<Number>(y));
        },
        a, b);
}

template <typename Number, int count>
[[gnu::always_inline]] inline Lanes<Number, count> operator-(const Lanes<Number, count>& a,
                                                             const Lanes<Number, count>& b) {
    return registerwise<Lanes<Number, count>>(
        [](auto x, auto y) {
            return asNumbers<decltype(x)>(asBits<Number>(x) - asBits<Number>(y));
        },
        a, b);
}

template <typename Number, int count>
[[gnu::always_inline]] inline Lanes<Number, count> operator*(const Lanes<Number, count>& a,
                                                             const Lanes<Number, count>& b) {
    return registerwise<Lanes<Number, count>>([](auto x, auto y) { return x * y; }, a, b);
}

/// Set where a > b.
template <typename Number, int count>
[[gnu::always_inline]] inline MaskOf<Lanes<Number, count>> operator>(
    const Lanes<Number, count>& a, const Lanes<Number, count>& b) {
    return registerwise<MaskOf<Lanes<Number, count>>>([](auto x, auto y) { return x > y; }, a, b);
}

template <typename Number, int count>
[[gnu::always_inline]] inline Lanes<Number, count> operator~(const Lanes<Number, count>& a) {
    return registerwise<Lanes<Number, count>>([](auto x) { return ~x; }, a);
}

/// The numbers where the mask is set, 0 elsewhere.
template <typename Number, int count, typename Mask>
[[gnu::always_inline]] inline Lanes<Number, count> operator&(const Lanes<Number, count>& a,
                                                             const Lanes<Mask, count>& mask) {
    static_assert(sizeof(Mask) == sizeof(Number) && std::is_integral_v<Mask>);
    using Register = typename Lanes<Number, count>::Register;
    using Bits = typename Lanes<Mask, count>::Register;
    return registerwise<Lanes<Number, count>>(
        [](auto x, auto y) { return reinterpret_cast<Register>(reinterpret_cast<Bits>(x) & y); }, a,
        mask);
}

/// Where either mask is set.
template <typename Number, int count>
[[gnu::always_inline]] inline Lanes<Number, count> operator|(const Lanes<Number, count>& a,
                                                             const Lanes<Number, count>& b) {
    return registerwise<Lanes<Number, count>>([](auto x, auto y) { return x | y; }, a, b);
}

/// The numbers of `a` where the mask is set, those of `b` elsewhere.
template <typename Mask, typename Number, int count>
[[gnu::always_inline]] inline Lanes<Number, count> chosen(const Lanes<Mask, count>& mask,
                                                          const Lanes<Number, count>& a,
                                                          const Lanes<Number, count>& b) {
    static_assert(sizeof(Mask) == sizeof(Number) && std::is_integral_v<Mask>);
    return registerwise<Lanes<Number, count>>([](auto set, auto x, auto y) { return set ? x : y; },
                                              mask, a, b);
}

template <typename Number, int count>
[[gnu::always_inline]] inline Lanes<Number, count> larger(const Lanes<Number, count>& a,
                                                          const Lanes<Number, count>& b) {
    return registerwise<Lanes<Number, count>>([](auto x, auto y) { return x > y ? x : y; }, a, b);
}

template <typename Number, int count>
[[gnu::always_inline]] inline Lanes<Number, count> smaller(const Lanes<Number, count>& a,
                                                           const Lanes<Number, count>& b) {
    return registerwise<Lanes<Number, count>>([](auto x, auto y) { return x < y ? x : y; }, a, b);
}

template <typename Number, int count>
[[gnu::always_inline]] inline Number lastLane(const Lanes<Number, count>& a) {
    using Some = Lanes<Number, count>;
    return a.part[Some::registers - 1][Some::perRegister - 1];
}

/// A register's numbers one lane further, behind the last one of the register before.
template <typename Register, int... i>
[[gnu::always_inline]] inline Register movedBehind(Register before, Register numbers,
                                                   std::integer_sequence<int, i...> /*lanes*/) {
    constexpr int count = sizeof...(i);
    return __builtin_shufflevector(before, numbers, (count - 1 + i)...);
}

/// The same behind a number. Which of the two ways is the shorter one depends on the width: of the
/// other, compilers make a dozen instructions or take a lane out and put it in again.
template <typename Register, typename Number, int... i>
[[gnu::always_inline]] inline Register movedBehind(Number before, Register numbers,
                                                   std::integer_sequence<int, i...> lanes) {
    if constexpr (sizeof(Register) == 16) {
        constexpr int count = sizeof...(i);
        Register moved = __builtin_shufflevector(Register{}, numbers, (count - 1 + i)...);
        moved[0] = before;
        return moved;
    } else {
        return movedBehind(before - Register{}, numbers, lanes);
    }
}

/// Everything one lane further; `first` comes into lane 0 and the last one drops out.
template <typename Number, int count>
[[gnu::always_inline]] inline Lanes<Number, count> movedUp(const Lanes<Number, count>& a,
                                                           Number first) {
    using Some = Lanes<Number, count>;
    using Indices = std::make_integer_sequence<int, Some::perRegister>;
    Some result;
    result.part[0] = movedBehind(first, a.part[0], Indices());
    for (int i = 1; i < Some::registers; ++i) {
        result.part[i] = movedBehind(a.part[i - 1], a.part[i], Indices());
    }
    return result;
}

}  // namespace lanes
