#pragma once
// Test folders and the byte layouts of the game's data files, written out by hand.
#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>
#include <vector>

namespace fuh::test {

// A fresh folder under the system temp directory, removed with everything in it.
class TempOrdner {
  public:
    TempOrdner() {
        std::string muster = (std::filesystem::temp_directory_path() / "fuh_dialogs_XXXXXX").string();
        if (!mkdtemp(muster.data())) throw std::runtime_error("mkdtemp");
        pfad_ = muster;
    }
    ~TempOrdner() {
        std::error_code ec;
        std::filesystem::remove_all(pfad_, ec);
    }
    TempOrdner(const TempOrdner&) = delete;
    TempOrdner& operator=(const TempOrdner&) = delete;

    const std::filesystem::path& pfad() const { return pfad_; }
    void schreiben(const std::string& name, const std::vector<uint8_t>& b) const {
        std::ofstream aus(pfad_ / name, std::ios::binary | std::ios::trunc);
        aus.write(reinterpret_cast<const char*>(b.data()), static_cast<std::streamsize>(b.size()));
    }
    std::vector<uint8_t> lesen(const std::string& name) const {
        std::ifstream ein(pfad_ / name, std::ios::binary);
        return {std::istreambuf_iterator<char>(ein), std::istreambuf_iterator<char>()};
    }
    // Names of all entries, to check nothing else (temporary files) was left behind.
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

inline void le(std::vector<uint8_t>& b, uint64_t wert, int laenge) {
    for (int k = 0; k < laenge; ++k)
        b.push_back(static_cast<uint8_t>(wert >> (8 * k)));
}

// The statistics record.
inline std::vector<uint8_t> zaehlerBytes(const std::array<int16_t, 17>& z) {
    std::vector<uint8_t> b;
    for (const int16_t w : z)
        le(b, static_cast<uint16_t>(w), 2);
    return b;
}

// One high-score record; name and result are blank padded.
inline std::vector<uint8_t> hsSatz(double datum, int16_t score, std::string name, std::string sieg) {
    std::vector<uint8_t> b;
    le(b, std::bit_cast<uint64_t>(datum), 8);
    le(b, static_cast<uint16_t>(score), 2);
    name.resize(15, ' ');
    sieg.resize(4, ' ');
    b.insert(b.end(), name.begin(), name.end());
    b.insert(b.end(), sieg.begin(), sieg.end());
    return b;
}

} // namespace fuh::test
