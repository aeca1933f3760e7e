// RAII owners of GLib objects.
// SPDX-License-Identifier: MIT
#pragma once

#include <gio/gio.h>

#include <memory>
#include <string>
#include <utility>

namespace brisel::platform::headless {

struct ObjectUnref {
    void operator()(gpointer object) const { g_object_unref(object); }
};

struct GFree {
    void operator()(gpointer memory) const { g_free(memory); }
};

struct TextsFree {
    void operator()(char** texts) const { g_strfreev(texts); }
};

struct ObjectListFree {
    void operator()(GList* list) const { g_list_free_full(list, g_object_unref); }
};

struct VariantUnref {
    void operator()(GVariant* variant) const { g_variant_unref(variant); }
};

template <typename Type>
using OwnedObject = std::unique_ptr<Type, ObjectUnref>;

using OwnedText = std::unique_ptr<char, GFree>;
/// A null-terminated array of strings.
using OwnedTexts = std::unique_ptr<char*, TextsFree>;
using OwnedVariant = std::unique_ptr<GVariant, VariantUnref>;
using OwnedObjectList = std::unique_ptr<GList, ObjectListFree>;

/// Owns the GError of one call; pass `receive()` to the call.
class CallError {
  public:
    CallError() = default;
    CallError(const CallError&) = delete;
    CallError& operator=(const CallError&) = delete;
    ~CallError() { g_clear_error(&error_); }

    [[nodiscard]] GError** receive() { return &error_; }
    [[nodiscard]] const GError* get() const { return error_; }
    explicit operator bool() const { return error_ != nullptr; }
    [[nodiscard]] std::string message() const {
        return error_ != nullptr ? error_->message : "no error";
    }

  private:
    GError* error_ = nullptr;
};

/// Disconnects a GObject signal when destroyed. The object must outlive it.
class SignalConnection {
  public:
    /// Calls `callback` with `data` only; drops the signal's own arguments.
    SignalConnection(gpointer object, const char* signal, void (*callback)(gpointer data),
                     gpointer data)
        : object_(object),
          id_(g_signal_connect_swapped(object, signal, reinterpret_cast<GCallback>(callback),
                                       data)) {}
    SignalConnection(SignalConnection&& other) noexcept
        : object_(other.object_), id_(std::exchange(other.id_, 0)) {}
    SignalConnection& operator=(SignalConnection&&) = delete;
    SignalConnection(const SignalConnection&) = delete;
    SignalConnection& operator=(const SignalConnection&) = delete;
    ~SignalConnection() {
        if (id_ != 0) g_signal_handler_disconnect(object_, id_);
    }

  private:
    gpointer object_;
    gulong id_;
};

}  // namespace brisel::platform::headless
