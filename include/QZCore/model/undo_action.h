// What an undo manager keeps: calls that are made later.
#pragma once

#include <concepts>
#include <memory>
#include <type_traits>
#include <utility>

namespace QZCore {

/// A call that is recorded now and made later. Can be moved, not copied.
class UndoAction {
public:
    /// Records `work`, anything that can be called without arguments.
    template <class Work>
    requires(std::invocable<Work&> && !std::same_as<Work, UndoAction>) UndoAction(Work work)
        : call_(std::make_unique<CallOf<Work>>(std::move(work))) {}

    /// Makes the call.
    void perform() { call_->make(); }

private:
    struct Call {
        Call() = default;
        virtual ~Call() = default;
        Call(const Call&) = delete;
        Call& operator=(const Call&) = delete;
        virtual void make() = 0;
    };

    template <class Work>
    struct CallOf final : Call {
        explicit CallOf(Work recorded) : work(std::move(recorded)) {}
        void make() override { work(); }
        Work work;
    };

    std::unique_ptr<Call> call_;
};

/// Records calls on a target; what `prepareWithInvocationTarget` returns.
template <class Manager, class Reference>
class UndoInvocation {
public:
    /// Recording for `manager`. `reference` is a pointer to the target, or a
    /// weak pointer.
    UndoInvocation(Manager& manager, const void* target, Reference reference)
        : manager_(manager), target_(target), reference_(std::move(reference)) {}

    /// Records `operation`, a pointer to a member function or anything that can
    /// be called with the target first, with copies of `arguments`. A call on a
    /// target that a weak pointer no longer finds is not made.
    template <class Operation, class... Arguments>
    void invoke(Operation operation, Arguments... arguments) {
        manager_.registerUndoWithTarget(
            target_, [reference = reference_, operation, ... held = std::move(arguments)] {
                const auto target = locked(reference);
                if (target == nullptr) return;
                if constexpr (std::is_member_function_pointer_v<Operation>) {
                    ((*target).*operation)(held...);
                } else {
                    operation(*target, held...);
                }
            });
    }

private:
    template <class Any>
    static auto locked(const Any& reference) {
        if constexpr (requires { reference.lock(); }) {
            return reference.lock();
        } else {
            return reference;
        }
    }

    Manager& manager_;
    const void* target_;
    Reference reference_;
};

}  // namespace QZCore
