#!/usr/bin/env python3
"""Writes the table of the descriptions of kanji, as lines of C++: {0x5B66, 8, u"学校のガク、まなぶ"},

Usage: make_descriptions.py [--heard] [--output FILE] [--edict FILE] [--kanjidic FILE] [--unihan FOLDER]
Sources: kanjidic, edict and the Unihan data, from the Debian packages kanjidic, edict and unicode-data.
With --heard the lines are those of a table to check with: kanji, description, and its sound in katakana.

A kanji is told by a word that holds it, with its reading there ("学校のガク"), and by its Japanese reading. Rare ones have
their radical and strokes, old and unusual forms the kanji that they are a form of. No two sound alike.
"""
import argparse
import bz2
import collections
import itertools
import re
from pathlib import Path

HERE = Path(__file__).parent
UNWANTED = re.compile(r"\((?:[a-z-]+,)*(arch|obs|obsc|vulg|X|derog|oK|iK|io|ok|ik|sl|rare|hist)[,)]")
MOST_WORDS = 6  # tried for a kanji before radical and strokes have to tell it from another
VOICED = dict(zip("かきくけこさしすせそたちつてとはひふへほ", "がぎぐげござじずぜぞだぢづでどばびぶべぼ"))
HALF_VOICED = dict(zip("はひふへほ", "ぱぴぷぺぽ"))
U_TO_I = dict(zip("うくぐすつぬぶむる", "いきぎしちにびみり"))
NUMERALS = set("一二三四五六七八九十百千万億")


def hiragana(text):
    return "".join(chr(ord(c) - 0x60) if "ァ" <= c <= "ヶ" else c for c in text)


def katakana(text):
    return "".join(chr(ord(c) + 0x60) if "ぁ" <= c <= "ゖ" else c for c in text)


def is_kanji(c):
    return "\u3400" <= c <= "\u9fff" or "\uf900" <= c <= "\ufaff"


class Kanji:
    def __init__(self, sign):
        self.sign, self.on, self.kun = sign, [], []
        self.radical = self.strokes = 0
        self.grade, self.rank = 12, 3000
        self.variants = []
        self.nickname = ""

    def kun_reading(self):
        return self.kun[0].replace(".", "") if self.kun else ""


def read_kanjidic(path, table):
    jis = {}
    entries = []
    for line in path.read_text("euc-jp", errors="replace").splitlines()[1:]:
        head, _, _ = line.partition(" {")
        words = head.split()
        sign = words[0]
        jis[words[1]] = sign
        entries.append((sign, words))
    for sign, words in entries:
        if sign not in table:
            continue
        kanji, names = table[sign], False
        for word in words[2:]:
            names = names or word in ("T1", "T2")
            if word[0] in "BC" and word[1:].isdigit():  # C: the classical one, where B is another
                kanji.radical = int(word[1:])
            elif word[0] == "S" and word[1:].isdigit() and not kanji.strokes:
                kanji.strokes = int(word[1:])
            elif word[0] == "G" and word[1:].isdigit():
                kanji.grade = int(word[1:])
            elif word[0] == "F" and word[1:].isdigit():
                kanji.rank = int(word[1:])
            elif word.startswith("XJ0"):
                kanji.variants.append(jis.get(word[3:], ""))
            elif not names and "ァ" <= word.strip("-")[:1] <= "ヶ":
                kanji.on.append(word.strip("-"))
            elif not names and "ぁ" <= word.strip("-")[:1] <= "ゖ":
                kanji.kun.append(word.strip("-"))


ROMAN = {"": "アイウエオ", "k": "カキクケコ", "s": "サシスセソ", "t": "タチツテト", "n": "ナニヌネノ", "h": "ハヒフヘホ",
         "m": "マミムメモ", "y": "ヤ ユ ヨ", "r": "ラリルレロ", "w": "ワ   ヲ", "g": "ガギグゲゴ", "z": "ザジズゼゾ", "d": "ダヂヅデド",
         "b": "バビブベボ", "p": "パピプペポ", "f": "  フ  ", "j": " ジ   "}


def from_roman(text):
    """A reading of the Unihan data, KYOU, in katakana; empty where a sign of it is unknown."""
    rest, kana = text.lower(), ""
    rest = rest.replace("tsu", "tu").replace("sh", "sy").replace("ch", "ty").replace("syi", "si").replace("tyi", "ti")
    rest = re.sub(r"j([auo])", r"zy\1", rest)
    while rest:
        m = re.match(r"([kstnhmyrwgzdbpfj]?)(y?)([aiueo])", rest)
        if m and m[1] == "y" and not m[2]:
            kana += ROMAN["y"]["aiueo".index(m[3])]
        elif m and m[2] and m[1]:
            kana += ROMAN[m[1]][1] + {"a": "ャ", "u": "ュ", "o": "ョ"}.get(m[3], "?")
        elif m:
            kana += ROMAN[m[1]]["aiueo".index(m[3])]
        elif rest[0] == "n":
            kana, rest = kana + "ン", rest[1:]
            continue
        elif len(rest) > 1 and rest[0] == rest[1]:
            kana, rest = kana + "ッ", rest[1:]
            continue
        else:
            return ""
        rest = rest[m.end():]
    return kana if "?" not in kana and " " not in kana else ""


def unihan_fields(folder, name):
    with bz2.open(folder / f"Unihan_{name}.txt.bz2", "rt", encoding="utf-8") as lines:
        for line in lines:
            if line.startswith("U+"):
                code, field, value = line.rstrip("\n").split("\t")
                if len(code) == 6:
                    yield chr(int(code[2:], 16)), field, value


def read_unihan(folder, table):
    """For what kanjidic leaves open: above all the 360 kanji that it lacks."""
    fields = collections.defaultdict(dict)
    for sign, field, value in itertools.chain(*(unihan_fields(folder, name) for name in
                                                ("Readings", "Variants", "IRGSources", "RadicalStrokeCounts"))):
        if sign in table:
            fields[sign][field] = value
    for sign, kanji in table.items():
        of = fields[sign]
        if not kanji.radical and "kRSUnicode" in of:
            kanji.radical = int(re.match(r"\d+", of["kRSUnicode"])[0])
        if not kanji.strokes and "kTotalStrokes" in of:
            kanji.strokes = int(of["kTotalStrokes"].split()[0])
        if not kanji.on and not kanji.kun:
            kanji.on = [k for k in map(from_roman, of.get("kJapaneseOn", "").split()) if k]
            kanji.kun = [hiragana(k) for k in map(from_roman, of.get("kJapaneseKun", "").split()) if k]
        for name in ("kCompatibilityVariant", "kSemanticVariant", "kZVariant"):
            kanji.variants += [chr(int(code, 16)) for code in re.findall(r"U\+([0-9A-F]{4})\b", of.get(name, ""))]


def read_variants(path, table):
    """Known forms of names, and what they are called: lines of a form, its usual kanji, and a name or none."""
    for line in path.read_text().splitlines():
        form, usual, *name = line.split()
        table[form].variants = [usual]
        table[form].nickname = "".join(name)


def usual_form(kanji, table):
    """The everyday kanji that this one is a form of, or None."""
    if kanji.grade < 9:
        return None
    usual = [table[v] for v in kanji.variants
             if v in table and table[v].grade < 10 and (table[v].grade, table[v].rank) < (kanji.grade, kanji.rank)]
    return max(usual, default=None, key=lambda u: (bool(set(u.kun) & set(kanji.kun)), u.radical == kanji.radical,
                                                   bool(set(u.on) & set(kanji.on))))


def segments(kanji):
    """Each sound that the kanji may have inside a word, with the reading behind it, the cost of the change, and whether
    it is of Chinese origin."""
    found = {}

    def add(sound, base, cost, on):
        if sound and (sound not in found or found[sound][1] > cost):
            found[sound] = (base, cost, on)

    def add_changed(sound, base, cost, on):
        forms = [(sound, cost)]
        if sound[-1] in "つちくき" and len(sound) > 1:
            forms.append((sound[:-1] + "っ", cost + 6))
        for form, price in forms:
            add(form, base, price, on)
            if form[0] in VOICED:
                add(VOICED[form[0]] + form[1:], base, price + 10, on)
            if form[0] in HALF_VOICED:
                add(HALF_VOICED[form[0]] + form[1:], base, price + 10, on)

    for i, reading in enumerate(kanji.on):
        add_changed(hiragana(reading), reading, i * 15, True)
    start = 40 if kanji.on else 0
    for i, reading in enumerate(kanji.kun):
        stem, _, ending = reading.partition(".")
        add_changed(stem, stem, start + i * 5, False)
        if ending:
            noun = stem + (ending[:-1] if len(ending) > 1 else U_TO_I.get(ending, ""))
            add_changed(noun, noun, start + i * 5 + 20, False)
    return found


def align(word, sound, sounds):
    """The ways to share the sound among the signs of the word: lists of (base, cost, on) or None for a kana."""
    if not word:
        return [[]] if not sound else []
    first = word[0]
    if not is_kanji(first):
        return [[None] + rest for rest in align(word[1:], sound[1:], sounds)] if sound[:1] == hiragana(first) else []
    ways = []
    for length in range(1, min(len(sound), 6) + 1):
        part = sounds.get(first, {}).get(sound[:length])
        if part:
            ways += [[part] + rest for rest in align(word[1:], sound[length:], sounds)]
    return ways


def read_words(path, table, sounds, avoid):
    """The words of each kanji, the best first: (cost, word, sound, base reading, common)."""
    lines = []
    for line in path.read_text("euc-jp", errors="replace").splitlines()[1:]:
        m = re.match(r"(\S{1,4}) \[([ぁ-ん]+)\]", line)
        if m and any(map(is_kanji, m[1])) and all(is_kanji(c) or "ぁ" <= c <= "ん" for c in m[1]) \
                and not UNWANTED.search(line) and m[1] not in avoid:
            lines.append((m[1], m[2], "/(P)/" in line))
    homophones = collections.Counter(sound for _, sound, common in lines if common)
    readings = collections.defaultdict(set)
    for word, sound, _ in lines:
        readings[word].add(sound)
    words = collections.defaultdict(list)
    for word, sound, common in lines:
        if not common and len(readings[word]) > 1:
            continue
        ways = align(word, sound, sounds)
        if len(ways) == 0:
            continue
        way = min(ways, key=lambda w: sum(part[1] for part in w if part))
        kanji = [c for c in word if is_kanji(c)]
        cost = (0 if common else 1000) + {1: 60, 2: 0, 3: 25, 4: 50}[len(word)] + homophones[sound] * 6
        cost += 30 if len(kanji) < len(word) else 0
        cost += 200 if len(set(kanji)) < len(kanji) else 0
        cost += 25 * (len(readings[word]) - 1)
        cost += 100 if NUMERALS.issuperset(word) else 0
        for i, (sign, part) in enumerate(zip(word, way)):
            if not part or sign not in table:
                continue
            others = [table[c] for c in kanji if c != sign and c in table]
            if len(word) == 1 and part[2]:
                continue
            price = cost + part[1] + min(i, 2) * 6 + sum(o.grade * 2 + o.rank // 100 for o in others)
            words[sign].append((price, word, sound, part[0], common))
    for of in words.values():
        of.sort()
    return words


def heard(text):
    """How kana sound: long vowels one, letters of the same sound one."""
    text = katakana(text)
    for pair in ("ヅズ", "ヂジ", "ヲオ"):
        text = text.replace(pair[0], pair[1])
    out = ""
    rows = ["アカガサザタダナハバパマヤラワャァ", "イキギシジチニヒビピミリィ", "ウクグスズツヌフブプムユルュゥ", "エケゲセゼテデネヘベペメレェ",
            "オコゴソゾトドノホボポモヨロョォ"]
    for c in text:
        before = next((i for i, row in enumerate(rows) if out and out[-1] in row), -1)
        lengthens = {"ア": (0,), "イ": (1, 3), "ウ": (2, 4), "エ": (3,), "オ": (4,)}.get(c, ())
        out += "ー" if before in lengthens else c
    return out.replace(" ", "")


def code_words(sign):
    return "コード" + "".join(" " + digit for digit in sign.encode("cp932").hex().upper())


class Description:
    def __init__(self, parts):
        self.text = "、".join(text for text, _ in parts if text)
        self.sound = "、".join(map(heard, "、".join(sound for _, sound in parts if sound).split("、")))


def choices(kanji, words, table, radicals):
    """The descriptions of a kanji, the shortest first; the last tells the code and is nobody else's."""
    sign = kanji.sign
    radical = (radicals[kanji.radical - 1],) * 2
    strokes = (f"{kanji.strokes}画", f"{kanji.strokes}かく")
    code = (code_words(sign),) * 2
    usual = usual_form(kanji, table)
    if usual:
        own = words[usual.sign][0] if words[usual.sign] else None
        told = (f"{own[1]}の{own[3]}", own[2] + "の" + own[3]) if own else ("", "")
        name = kanji.nickname or kanji.kun_reading() or usual.kun_reading()
        parts = [(usual.sign + "の異体字", (usual.on + [usual.kun_reading()])[0] + "のいたいじ"), (name, name), told]
    else:
        own = [w for w in words[sign] if w[4]][:MOST_WORDS]
        rare = [] if own else words[sign][:1]
        on = "、".join(kanji.on[:2])
        for word in own + rare:
            base = word[2] if word[1][0] == sign and not any(map(is_kanji, word[1][1:])) else word[3]
            kun = next((k.replace(".", "") for k in kanji.kun if k.replace(".", "") != base), "")
            told = (f"{word[1]}の{base}", word[2] + "の" + base) if base != word[2] else (base, base)
            short = told[0] == base and len(base) < 3
            parts = [told, (kun, kun)] + ([radical] if rare or short else [])
            yield Description(parts)
        if not own and not rare:
            kun = "、".join(k.replace(".", "") for k in kanji.kun[:2])
            parts = [(on, on), (kun, kun), radical, strokes]
            yield Description(parts)
    yield Description(parts)
    for more in ([strokes], [radical], [radical, strokes], [radical, strokes, code]):
        yield Description(parts + [part for part in more if part not in parts])


def main():
    arguments = argparse.ArgumentParser()
    arguments.add_argument("--heard", action="store_true")
    arguments.add_argument("--output", type=Path, default=Path("/dev/stdout"))
    arguments.add_argument("--edict", type=Path, default=Path("/usr/share/edict/edict"))
    arguments.add_argument("--kanjidic", type=Path, default=Path("/usr/share/edict/kanjidic"))
    arguments.add_argument("--unihan", type=Path, default=Path("/usr/share/unicode"))
    options = arguments.parse_args()

    table = {}
    for lead in [*range(0x81, 0xA0), *range(0xE0, 0xF0), *range(0xFA, 0xFD)]:
        for trail in range(0x40, 0xFD):
            sign = bytes([lead, trail]).decode("cp932", errors="ignore")
            if len(sign) == 1 and is_kanji(sign):
                table[sign] = Kanji(sign)
    read_kanjidic(options.kanjidic, table)
    read_unihan(options.unihan, table)
    read_variants(HERE / "variants.txt", table)
    radicals = (HERE / "radicals.txt").read_text().split()
    avoid = set((HERE / "misread_words.txt").read_text().split())
    sounds = {sign: segments(kanji) for sign, kanji in table.items()}
    words = read_words(options.edict, table, sounds, avoid)

    told, taken = {}, set()
    for kanji in sorted(table.values(), key=lambda k: (k.grade, k.rank, k.sign)):
        told[kanji.sign] = next(d for d in choices(kanji, words, table, radicals) if d.sound not in taken)
        taken.add(told[kanji.sign].sound)
    lines = []
    for sign in sorted(told):
        if options.heard:
            lines.append(f"{sign}\t{told[sign].text}\t{told[sign].sound}\n")
        else:
            lines.append(f'{{0x{ord(sign):04X}, {table[sign].strokes}, u"{told[sign].text}"}},\n')
    options.output.write_text("".join(lines))


main()
