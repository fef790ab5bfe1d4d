// The holder of a service that the whole process shares.
#pragma once

#include <memory>
#include <mutex>
#include <utility>

namespace QZCore {

/// A default service, and the one that an application may put in its place.
template <class Service>
class SharedService {
public:
    explicit SharedService(std::shared_ptr<Service> standard) : standard_(std::move(standard)) {}

    /// The service in use.
    [[nodiscard]] std::shared_ptr<Service> current() {
        const std::lock_guard lock(mutex_);
        return chosen_ == nullptr ? standard_ : chosen_;
    }

    /// Takes `service`, and returns the one chosen before. An empty pointer
    /// stands for the default, in both directions.
    std::shared_ptr<Service> replaceBy(std::shared_ptr<Service> service) {
        const std::lock_guard lock(mutex_);
        return std::exchange(chosen_, std::move(service));
    }

private:
    std::mutex mutex_;
    std::shared_ptr<Service> chosen_;
    const std::shared_ptr<Service> standard_;
};

}  // namespace QZCore
