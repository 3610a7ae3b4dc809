#!/usr/bin/env python3
"""Writes src/tablejobs/search/kanji_forms.inc: old and popular forms of a kanji, each with the form that stands for it.

Usage: tools/make_kanji_forms.py FOLDER > src/tablejobs/search/kanji_forms.inc
FOLDER holds the Unicode character data as Debian's package unicode-data 15.0 lays it out (/usr/share/unicode:
UnicodeData.txt and the Unihan_*.txt.bz2). Sources, and what is taken of each:
- kJinmeiyoKanji and kZVariant of Unihan: all pairs;
- canonical decompositions of UnicodeData.txt: compatibility ideographs to the unified one;
- the list of common kanji (Joyo kanji hyo, cabinet notice 2 of 2010): the old forms given there in brackets, below as
  JOYO. That both belong together is checked: the new form is a common one, and they share a reading where Unihan knows one;
- NAMES: popular forms in names of persons and places that none of these has.
Only pairs of which both have a code in code page 932 are written.
"""
import bz2
import pathlib
import re
import sys

JOYO = """
亜亞 悪惡 圧壓 囲圍 医醫 為爲 壱壹 隠隱 栄榮 営營 衛衞 駅驛 円圓 塩鹽 縁緣 艶艷 応應 欧歐 殴毆 桜櫻 奥奧 横橫 温溫 穏穩 仮假 価價
画畫 会會 絵繪 壊壞 懐懷 概槪 拡擴 殻殼 覚覺 学學 岳嶽 楽樂 渇渴 缶罐 巻卷 陥陷 勧勸 寛寬 関關 歓歡 観觀 気氣 既旣 帰歸 偽僞 戯戲
犠犧 旧舊 拠據 挙擧 虚虛 峡峽 挟挾 狭狹 郷鄕 暁曉 区區 駆驅 勲勳 薫薰 径徑 茎莖 恵惠 掲揭 渓溪 経經 蛍螢 軽輕 継繼 鶏鷄 芸藝 撃擊
欠缺 研硏 県縣 倹儉 剣劍 険險 圏圈 検檢 献獻 権權 顕顯 験驗 厳嚴 広廣 効效 恒恆 黄黃 鉱鑛 号號 国國 黒黑 砕碎 済濟 斎齋 剤劑 雑雜
参參 桟棧 蚕蠶 惨慘 賛贊 残殘 糸絲 歯齒 児兒 辞辭 湿濕 実實 写寫 釈釋 寿壽 収收 従從 渋澁 獣獸 縦縱 粛肅 処處 緒緖 叙敍 将將 称稱
渉涉 焼燒 証證 奨奬 条條 状狀 乗乘 浄淨 剰剩 畳疊 縄繩 壌壤 嬢孃 譲讓 醸釀 触觸 嘱囑 真眞 寝寢 慎愼 尽盡 図圖 粋粹 酔醉 穂穗 随隨
髄髓 枢樞 数數 瀬瀨 声聲 斉齊 静靜 窃竊 摂攝 専專 浅淺 戦戰 践踐 銭錢 潜潛 繊纖 禅禪 双雙 壮壯 争爭 荘莊 捜搜 挿插 巣巢 曽曾 装裝
総總 騒騷 増增 蔵藏 臓臟 即卽 属屬 続續 堕墮 対對 体體 帯帶 滞滯 台臺 滝瀧 択擇 沢澤 担擔 単單 胆膽 団團 断斷 弾彈 遅遲 痴癡 虫蟲
昼晝 鋳鑄 庁廳 徴徵 聴聽 勅敕 鎮鎭 逓遞 鉄鐵 点點 転轉 伝傳 灯燈 当當 党黨 盗盜 稲稻 闘鬭 徳德 独獨 読讀 届屆 弐貳 悩惱 脳腦 覇霸
拝拜 廃廢 売賣 麦麥 発發 髪髮 抜拔 晩晚 蛮蠻 秘祕 浜濱 瓶甁 払拂 仏佛 併倂 並竝 餅餠 辺邊 変變 弁辨 弁瓣 弁辯 歩步 宝寶 豊豐 褒襃
翻飜 毎每 万萬 満滿 麺麵 黙默 弥彌 訳譯 薬藥 与與 予豫 余餘 誉譽 揺搖 様樣 謡謠 来來 頼賴 乱亂 覧覽 竜龍 両兩 猟獵 緑綠 涙淚 塁壘
礼禮 励勵 戻戾 霊靈 齢齡 暦曆 歴歷 恋戀 錬鍊 炉爐 労勞 郎郞 楼樓 録錄 湾灣
""".split()

NAMES = """
高髙 崎﨑 浜濵 辺邉 柳栁 徳悳 昂昻 島嶌 淵渕 館舘 桑桒 船舩 崎嵜 富冨 壺壷 曻昇 清淸 青靑 瀬瀨 塚塚 薮藪 桧檜 篭籠 竈竃 靭靱 鶴靍
鶴靏 橋槗 穂穗
""".split()


def in_code_page(ch: str) -> bool:
    try:
        return len(ch.encode("cp932")) == 2
    except UnicodeEncodeError:
        return False


def lines(folder: pathlib.Path, name: str):
    plain = folder / name
    data = plain.read_bytes() if plain.exists() else bz2.decompress((folder / (name + ".bz2")).read_bytes())
    return data.decode().splitlines()


def unihan(folder: pathlib.Path):
    fields = {}
    for name in ("Unihan_OtherMappings.txt", "Unihan_Readings.txt", "Unihan_Variants.txt"):
        for line in lines(folder, name):
            if line.startswith("U+"):
                code, key, value = line.split("\t")
                fields.setdefault(key, {})[chr(int(code[2:], 16))] = value
    return fields


def targets(value: str):
    return [chr(int(code, 16)) for code in re.findall(r"U\+([0-9A-F]+)", value)]


def readings(fields, ch: str):
    return {word for key in ("kJapaneseOn", "kJapaneseKun") for word in fields[key].get(ch, "").split()}


def joyo_pairs(fields):
    for new, old in JOYO:
        known = readings(fields, new)
        if new not in fields["kJoyoKanji"] or known.isdisjoint(readings(fields, old) or known):
            sys.exit(f"no pair: {new}{old}")
        yield new, old


def decompositions(folder: pathlib.Path):
    for line in lines(folder, "UnicodeData.txt"):
        fields = line.split(";")
        if fields[1].startswith("CJK COMPATIBILITY IDEOGRAPH") and fields[5]:
            yield chr(int(fields[5], 16)), chr(int(fields[0], 16))


def main():
    folder = pathlib.Path(sys.argv[1])
    fields = unihan(folder)
    joyo = fields["kJoyoKanji"]
    pairs = [*joyo_pairs(fields), *decompositions(folder), *(tuple(pair) for pair in NAMES)]
    for key in ("kJinmeiyoKanji", "kZVariant"):
        pairs += [(ch, other) for ch, value in fields[key].items() for other in targets(value)]

    group = {}
    for a, b in pairs:
        if a == b or not in_code_page(a) or not in_code_page(b):
            continue
        merged = group.get(a, {a}) | group.get(b, {b})
        for ch in merged:
            group[ch] = merged

    # The common form stands for its group; without one the first by its code in JIS.
    def rank(ch):
        return (ch not in joyo, ch.encode("cp932"))

    print("// Made by tools/make_kanji_forms.py from the Unicode character data 15.0 (Copyright 1991-2022 Unicode, Inc.,")
    print("// https://www.unicode.org/license.txt) and the list of common kanji of 2010. Old form, standing form.")
    for ch in sorted(group):
        stands = min(group[ch], key=rank)
        if ch != stands:
            print(f"{{u'{ch}', u'{stands}'}},")


main()
