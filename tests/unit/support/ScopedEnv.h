#ifndef ZEF_TEST_SCOPED_ENV_H
#define ZEF_TEST_SCOPED_ENV_H

// Sets or unsets one environment variable for a scope and restores the
// previous state afterwards.

#include <stdlib.h>

#include <string>
#include <utility>

class ScopedEnv {
public:
    /// Sets `name` to `value`.
    ScopedEnv(const std::string& name, const std::string& value) : ScopedEnv(name) {
        setenv(_name.c_str(), value.c_str(), 1);
    }

    /// Unsets `name`.
    static ScopedEnv unset(const std::string& name) {
        ScopedEnv env(name);
        unsetenv(name.c_str());
        return env;
    }

    ~ScopedEnv() {
        if (_name.empty())
            return;
        if (_hadValue)
            setenv(_name.c_str(), _oldValue.c_str(), 1);
        else
            unsetenv(_name.c_str());
    }

    ScopedEnv(ScopedEnv&& other) noexcept
        : _name(std::move(other._name)), _oldValue(std::move(other._oldValue)), _hadValue(other._hadValue) {
        other._name.clear();
    }
    ScopedEnv(const ScopedEnv&) = delete;
    ScopedEnv& operator=(const ScopedEnv&) = delete;
    ScopedEnv& operator=(ScopedEnv&&) = delete;

private:
    explicit ScopedEnv(const std::string& name) : _name(name) {
        const char* old = getenv(name.c_str());
        _hadValue = old != nullptr;
        if (_hadValue)
            _oldValue = old;
    }

    std::string _name;
    std::string _oldValue;
    bool _hadValue = false;
};

#endif // ZEF_TEST_SCOPED_ENV_H
