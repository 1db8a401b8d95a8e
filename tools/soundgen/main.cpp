// SPDX-License-Identifier: GPL-3.0-or-later
// gildenway-soundgen OUTDIR: synthesises every sound effect of the game into OUTDIR, under
// the file names the game plays them by. The same program always writes the same bytes.
#include <cstddef>
#include <cstdio>
#include <exception>
#include <filesystem>

#include "Recipes.h"
#include "WavFile.h"

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fprintf(stderr, "usage: gildenway-soundgen OUTDIR\n");
        return 2;
    }
    try {
        const std::filesystem::path folder = argv[1];
        std::filesystem::create_directories(folder);
        for (std::size_t i = 0; i < gw::kSoundEffectCount; ++i) {
            const auto effect = static_cast<gw::SoundEffect>(i);
            gw::soundgen::writeWav(folder / gw::soundFile(effect), gw::soundgen::render(effect));
        }
    } catch (const std::exception& error) {
        std::fprintf(stderr, "gildenway-soundgen: %s\n", error.what());
        return 1;
    }
    return 0;
}
