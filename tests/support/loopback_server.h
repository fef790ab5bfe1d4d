// An HTTP server on the loopback address, for tests of fetching.
#pragma once

#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

#include <atomic>
#include <cstdlib>
#include <functional>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

#include "QZCore/foundation/data.h"

namespace QZCore::testing {

/// The server's end of one connection.
class Connection {
public:
    explicit Connection(int socket) : socket_(socket) {}
    ~Connection() { ::close(socket_); }
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;

    /// Sends `bytes` and returns whether the client still listens.
    [[nodiscard]] bool send(std::string_view bytes) const {
        return ::send(socket_, bytes.data(), bytes.size(), MSG_NOSIGNAL) ==
               static_cast<ssize_t>(bytes.size());
    }

    /// Says nothing until the client gives up.
    void stall() const {
        while (!receive().empty()) continue;
    }

    /// The head of the request: its first line and its fields.
    [[nodiscard]] std::string head() const {
        std::string text;
        while (text.find("\r\n\r\n") == std::string::npos) {
            const std::string piece = receive();
            if (piece.empty()) break;
            text += piece;
        }
        return text;
    }

private:
    [[nodiscard]] std::string receive() const {
        std::string piece(4096, '\0');
        const ssize_t count = ::recv(socket_, piece.data(), piece.size(), 0);
        piece.resize(count > 0 ? static_cast<std::size_t>(count) : 0);
        return piece;
    }

    int socket_;
};

/// Answers one request after the other, on a thread of its own.
class LoopbackServer {
public:
    /// Is given the request's path and head, and answers on the connection,
    /// which is closed afterwards.
    using Handler = std::function<void(const std::string& path, const std::string& head,
                                       const Connection& connection)>;

    explicit LoopbackServer(Handler handler) : handler_(std::move(handler)) {
        ::setenv("no_proxy", "127.0.0.1", 1);
        sockaddr_in address{};
        address.sin_family = AF_INET;
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        socklen_t length = sizeof address;
        auto* generic = reinterpret_cast<sockaddr*>(&address);
        ::bind(socket_, generic, length);
        ::listen(socket_, 16);
        ::getsockname(socket_, generic, &length);
        port_ = ntohs(address.sin_port);
        thread_ = std::thread([this] { serve(); });
    }

    ~LoopbackServer() {
        ::shutdown(socket_, SHUT_RDWR);
        thread_.join();
        ::close(socket_);
    }
    LoopbackServer(const LoopbackServer&) = delete;
    LoopbackServer& operator=(const LoopbackServer&) = delete;

    /// The URL of `path`, which begins with a slash.
    [[nodiscard]] URL url(std::string_view path) const {
        return {fromUTF8("http://127.0.0.1:" + std::to_string(port_) + std::string(path))};
    }

    /// The heads of all requests so far.
    [[nodiscard]] std::vector<std::string> requests() const {
        const std::lock_guard lock(mutex_);
        return requests_;
    }

private:
    void serve() {
        while (true) {
            const int accepted = ::accept(socket_, nullptr, nullptr);
            if (accepted < 0) return;
            const Connection connection(accepted);
            const std::string head = connection.head();
            {
                const std::lock_guard lock(mutex_);
                requests_.push_back(head);
            }
            const std::size_t start = head.find(' ') + 1;
            handler_(head.substr(start, head.find(' ', start) - start), head, connection);
        }
    }

    const Handler handler_;
    const int socket_ = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    int port_ = 0;
    mutable std::mutex mutex_;
    std::vector<std::string> requests_;
    std::thread thread_;
};

/// A whole answer with `body`; `fields` are whole lines with their ends.
inline std::string httpAnswer(std::string_view status, std::string_view fields,
                              std::string_view body) {
    return std::string("HTTP/1.1 ")
        .append(status)
        .append("\r\nConnection: close\r\nContent-Length: ")
        .append(std::to_string(body.size()))
        .append("\r\n")
        .append(fields)
        .append("\r\n")
        .append(body);
}

}  // namespace QZCore::testing
