#include "textures.h"

#include "cloth.h"
#include "soft_stuff.h"
#include "wood.h"

#include <map>
#include <stdexcept>

void paint_texture(const QString & words, QImage & page)
{
    static const std::map<QString, void (*)(const stuff_words &, QImage &)> kinds{
        {"wood", paint_wood},   {"cloth", paint_cloth}, {"cork", paint_cork}, {"felt", paint_felt},
        {"paper", paint_paper}, {"wall", paint_wall},   {"lawn", paint_lawn}};
    const stuff_words said(words);
    const auto found = kinds.find(said.kind());
    if (found == kinds.end())
        throw std::runtime_error(said.kind().toStdString() + ": no such stuff");
    found->second(said, page);
}
