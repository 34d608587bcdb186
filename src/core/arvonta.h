// The one source of the game's random draws, with a queue of given values for tests and the runner.
#pragma once

#include <cstdint>
#include <deque>
#include <functional>
#include <source_location>

namespace tanhua {

class Arvonta {
public:
    // r: a fresh uniform draw in [0,1). A queued value is taken first, when there is one.
    double r(std::source_location paikka = std::source_location::current());
    // D(x) = Int(x * r).
    long long D(double x, std::source_location paikka = std::source_location::current());
    // U(a..b) = a + Int((b - a + 1) * r): a uniform whole number from a to b.
    long long U(long long a, long long b, std::source_location paikka = std::source_location::current());

    // Given values, taken one a draw before the generator is asked.
    void Jonoon(double arvo) { jono_.push_back(arvo); }
    std::size_t JonossaJäljellä() const { return jono_.size(); }
    void TyhjennäJono() { jono_.clear(); }

    // The generator starts from the same state at each run; the game never reseeds it.
    void Siemen(std::uint32_t siemen) { tila_ = siemen & 0xFFFFFFu; }

    // Called at each draw with the value and where it was taken (for the runner's trace).
    std::function<void(double, const std::source_location&)> seuranta;

private:
    double Generaattori();

    static constexpr std::uint32_t kAlkutila = 0x50000;
    std::uint32_t tila_ = kAlkutila;
    std::deque<double> jono_;
};

}  // namespace tanhua
