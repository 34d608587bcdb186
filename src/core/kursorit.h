// The game's own pointer on its forms: which forms take the pitchfork, in what order, and what the
// player is told when the picture can't be loaded.
#pragma once

#include <array>
#include <functional>
#include <string_view>

namespace tanhua {

struct Peli;

// The forms that take `talikko.ico`, in the order they are given it. The news window, `Tarvikkeet`,
// `Sopimukset`, `Ravit`, `Kylvö` and `Nosto` keep the system's pointer.
inline constexpr std::array<std::string_view, 17> KURSORIN_LOMAKKEET{
    "Alku",  "Eläimet",   "Tanhua",      "Hevostalli", "ikkuna", "Käyrät",  "Message",  "Pankki",  "Pellot",
    "Pohja", "RahaKyltti", "Rakennukset", "Raportti",   "Tilanne", "Topten", "Tuotteet", "Työvoima"};

// With `Kursorit` on, gives each form its pointer through `lataa`, which raises the failure of a
// missing or unreadable file; each failing form shows the pointer's own box and the next follows.
// At the end the failure count is 0.
void LataaKursorit(Peli& peli, const std::function<void(std::string_view lomake)>& lataa);

}  // namespace tanhua
