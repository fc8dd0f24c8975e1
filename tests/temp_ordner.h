// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once
// A fresh temporary folder per test, removed afterwards.
#include <algorithm>
#include <filesystem>
#include <fstream>
#include <random>
#include <string>
#include <vector>

namespace fuh::test {

class TempOrdner {
  public:
    TempOrdner() {
        std::random_device rd;
        pfad_ = std::filesystem::temp_directory_path() /
                ("fuh-test-" + std::to_string(rd()) + std::to_string(rd()));
        std::filesystem::create_directories(pfad_);
    }
    ~TempOrdner() {
        std::error_code ec;
        std::filesystem::permissions(pfad_, std::filesystem::perms::owner_all, ec);
        std::filesystem::remove_all(pfad_, ec);
    }
    TempOrdner(const TempOrdner&) = delete;
    TempOrdner& operator=(const TempOrdner&) = delete;

    const std::filesystem::path& pfad() const { return pfad_; }
    std::filesystem::path operator/(const std::string& name) const { return pfad_ / name; }

    std::vector<unsigned char> lies(const std::string& name) const {
        std::ifstream ein(pfad_ / name, std::ios::binary);
        return {std::istreambuf_iterator<char>(ein), std::istreambuf_iterator<char>()};
    }
    void schreibe(const std::string& name, const std::vector<unsigned char>& bytes) const {
        std::ofstream aus(pfad_ / name, std::ios::binary | std::ios::trunc);
        aus.write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
    }
    bool gibt(const std::string& name) const { return std::filesystem::exists(pfad_ / name); }
    // Names of all entries, sorted: nothing else (no temporary file) may be left behind.
    std::vector<std::string> namen() const {
        std::vector<std::string> n;
        for (const auto& e : std::filesystem::directory_iterator(pfad_))
            n.push_back(e.path().filename().string());
        std::sort(n.begin(), n.end());
        return n;
    }

  private:
    std::filesystem::path pfad_;
};

} // namespace fuh::test
