#pragma once

#include "ui/controls/dispatch/Dispatch.h"

#include <concepts>
#include <functional>
#include <map>
#include <optional>
#include <tuple>
#include <type_traits>
#include <utility>
#include <variant>

namespace dyeworks {

/// What a member answers to arguments of the right types that it still cannot take.
struct BadParameter {};

template <typename Result>
using OrBadParameter = std::variant<Result, BadParameter>;

/// The members of a control, each a number, a kind and a function with the types of its signature. Arguments
/// are checked and converted before the function is called.
class MemberTable {
public:
    template <typename Function>
    void method(DispatchId id, Function function) {
        add(id, DispatchKind::Method, std::move(function));
    }
    template <typename Function>
    void get(DispatchId id, Function function) {
        add(id, DispatchKind::Get, std::move(function));
    }
    template <typename Function>
    void set(DispatchId id, Function function) {
        add(id, DispatchKind::Set, std::move(function));
    }

    [[nodiscard]] DispatchResult invoke(DispatchId id, DispatchKind kind, DispatchArguments arguments) const {
        const auto found = members_.find({id, kind});
        if (found == members_.end())
            return {DispatchStatus::MemberNotFound, {}};
        return found->second(arguments);
    }

private:
    using Member = std::function<DispatchResult(DispatchArguments)>;

    /// A member function pointer of a lambda's call operator says what the lambda takes.
    template <typename Function, typename Result, typename... Arguments>
    static Member wrapped(Function function, Result (Function::*)(Arguments...) const) {
        return [function = std::move(function)](DispatchArguments given) {
            return callWith<Result, Arguments...>(function, given, std::index_sequence_for<Arguments...>());
        };
    }

    template <typename Function>
    void add(DispatchId id, DispatchKind kind, Function function) {
        members_[{id, kind}] = wrapped(std::move(function), &Function::operator());
    }

    template <typename Result, typename... Arguments, typename Function, std::size_t... kIndex>
    static DispatchResult callWith(const Function& function, [[maybe_unused]] DispatchArguments given,
                                   std::index_sequence<kIndex...>) {
        if (given.size() != sizeof...(Arguments))
            return {DispatchStatus::BadParameterCount, {}};
        const std::tuple<std::optional<std::remove_cvref_t<Arguments>>...> taken{
            as<std::remove_cvref_t<Arguments>>(given[kIndex])...};
        if (!(std::get<kIndex>(taken).has_value() && ...))
            return {DispatchStatus::BadParameter, {}};
        if constexpr (std::is_void_v<Result>) {
            function(*std::get<kIndex>(taken)...);
            return {};
        } else {
            return result(function(*std::get<kIndex>(taken)...));
        }
    }

    template <typename Result>
    static DispatchResult result(Result value) {
        return {DispatchStatus::Done, std::move(value)};
    }
    template <typename Result>
    static DispatchResult result(OrBadParameter<Result> answer) {
        if (std::holds_alternative<BadParameter>(answer))
            return {DispatchStatus::BadParameter, {}};
        return result(std::get<Result>(std::move(answer)));
    }
    static DispatchResult result(std::monostate) { return {}; }

    /// `value` as the type that a member takes, or nothing when it cannot stand for one.
    template <typename Wanted>
    static std::optional<Wanted> as(const DispatchValue& value) {
        if (const Wanted* same = std::get_if<Wanted>(&value))
            return *same;
        if constexpr (std::integral<Wanted>) {
            if (const std::optional<std::int64_t> number = integer(value))
                return narrowed<Wanted>(*number);
        }
        return std::nullopt;
    }

    static std::optional<std::int64_t> integer(const DispatchValue& value) {
        return std::visit(
            [](const auto& held) -> std::optional<std::int64_t> {
                if constexpr (std::integral<std::remove_cvref_t<decltype(held)>>)
                    return held;
                else
                    return std::nullopt;
            },
            value);
    }

    template <typename Wanted>
    static std::optional<Wanted> narrowed(std::int64_t number) {
        const auto fitting = static_cast<Wanted>(number);
        return fitting == number ? std::optional(fitting) : std::nullopt;
    }

    std::map<std::pair<DispatchId, DispatchKind>, Member> members_;
};

} // namespace dyeworks
