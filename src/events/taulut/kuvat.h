// The news window's pictures of the events (under Kuvat/sattumat/) and the sounds they play.
#pragma once

#include <array>
#include <string_view>

namespace tanhua::sattumakuva {

inline constexpr std::string_view Pilaantunut = "pilaantunut.jpg";
inline constexpr std::string_view Suku = "suku.jpg";
inline constexpr std::string_view Suku2 = "suku2.jpg";
inline constexpr std::string_view Metsästäjä = "Metsästäjä.jpg";
inline constexpr std::string_view Varkaita = "varkaita.jpg";
inline constexpr std::string_view Varkaita2 = "varkaita2.jpg";
inline constexpr std::string_view Tulipalo = "tulipalo.jpg";
inline constexpr std::string_view Tulipalo2 = "tulipalo2.jpg";
inline constexpr std::string_view Aktivisti = "aktivisti.jpg";
inline constexpr std::string_view Tuomari = "tuomari.jpg";
inline constexpr std::string_view Lakimies = "lakimies.jpg";
inline constexpr std::string_view Tauti = "Tauti.jpg";
inline constexpr std::string_view Tauti2 = "Tauti2.jpg";
inline constexpr std::string_view Tapaturma = "tapaturma.jpg";
inline constexpr std::string_view Myrsky = "myrsky.jpg";
inline constexpr std::string_view Korjaaja = "korjaaja.jpg";
inline constexpr std::string_view Pako = "pako.jpg";
inline constexpr std::string_view Alamaailma = "alamaailma.jpg";

// Every picture an event can show, for the check of the program folder.
inline constexpr std::array KAIKKI{Pilaantunut, Suku,     Suku2,     Metsästäjä, Varkaita,  Varkaita2,
                                   Tulipalo,    Tulipalo2, Aktivisti, Tuomari,    Lakimies,  Tauti,
                                   Tauti2,      Tapaturma, Myrsky,    Korjaaja,   Pako,      Alamaailma};

}  // namespace tanhua::sattumakuva

namespace tanhua::sattumaääni {

inline constexpr std::string_view Kolina = "Kolina";
inline constexpr std::string_view Tuli = "Tuli";
inline constexpr std::string_view Koputus = "Koputus";
inline constexpr std::string_view Kärpänen = "Kärpänen";
inline constexpr std::string_view Sairas = "Sairas";

inline constexpr std::array KAIKKI{Kolina, Tuli, Koputus, Kärpänen, Sairas};

}  // namespace tanhua::sattumaääni
