#!/usr/bin/env python3
"""Make the stock tables, the sample board and the example of docs/table-format.md (standard library only).

    python3 assets/make_stock.py        writes assets/stock/ and tests/data/table-format/

The results are committed; run this again after a change here or in sample_addresses.csv. The same script
gives the same bytes everywhere. docs/table-format.md tells the two file formats.

The people, numbers and answers are invented: no telephone exchange begins with 0 or 1, and no mail is
delivered to the example domains.
"""
import csv
import math
import os

HERE = os.path.dirname(os.path.abspath(__file__))
STOCK = os.path.join(HERE, 'stock')
EXAMPLE = os.path.join(HERE, '..', 'tests', 'data', 'table-format')
CELL_BYTES = 254

# The codec writes these two with their NEC codes (EEE0, ED95); the code page writes the IBM ones.
IBM_CODES = {'髙': b'\xfb\xfc', '﨑': b'\xfa\xb1'}


def sjis(text):
    return b''.join(IBM_CODES.get(c) or c.encode('cp932') for c in text)


def cell(text, side, width):
    data = sjis(text)
    if len(data) > width:
        raise ValueError('%r is wider than %d bytes' % (text, width))
    return data.ljust(width) if side == 'L' else data.rjust(width)


class Table:
    """Items are (name, side, width); item 0 is the ID item. Records are lists of texts, one for each item."""

    def __init__(self, memo, items, records=()):
        self.memo, self.items, self.records = memo, items, records
        if sum(width for _, _, width in items) > CELL_BYTES or ',' in memo + ''.join(name for name, _, _ in items):
            raise ValueError(memo)

    def item_file(self):
        lines = ["100  ',%s,,%d" % (self.memo, len(self.items) - 1)]
        lines += ["%04d '%s,%s" % ((1000 + i) % 10000, name, side) for i, (name, side, _) in enumerate(self.items)]
        lines += ["%04d '%d" % ((2000 + i) % 10000, width) for i, (_, _, width) in enumerate(self.items)]
        return b''.join(sjis(line) + b'\r\n' for line in lines)

    def data_file(self):
        rows = []
        for record in self.records:
            if len(record) != len(self.items):
                raise ValueError(record)
            row = b''.join(cell(text, side, width) for text, (_, side, width) in zip(record, self.items))
            rows.append(row.ljust(CELL_BYTES) + b'\r\n')
        return b''.join(rows)


def grid(memo, count, side, width):
    return Table(memo, [('ID No', 'L', 6)] + [('欄%d' % (i + 1), side, width) for i in range(count)])


def account_book():
    """A date of ten characters, as the program enters it, fills its cell and moves on by itself."""
    return Table('家計簿', [('ID No', 'L', 5), ('日付', 'L', 10), ('費目', 'L', 12), ('摘要', 'L', 40), ('収入', 'R', 9),
                         ('支出', 'R', 9), ('残高', 'R', 10), ('支払方法', 'L', 12), ('支払先', 'L', 30), ('メモ', 'L', 60)])


ADDRESS_ITEMS = [('ID No', 'L', 5), ('氏名', 'L', 20), ('フリガナ', 'L', 24), ('郵便番号', 'L', 8), ('住所', 'L', 60),
                 ('電話', 'L', 14), ('携帯電話', 'L', 14), ('メール', 'L', 30), ('誕生日', 'L', 10), ('区分', 'L', 8),
                 ('メモ', 'L', 50)]


def sample_addresses():
    with open(os.path.join(HERE, 'sample_addresses.csv'), encoding='utf-8', newline='') as f:
        rows = list(csv.reader(f))
    if rows[0] != [name for name, _, _ in ADDRESS_ITEMS[1:]]:
        raise ValueError(rows[0])
    return Table('サンプル住所録 架空の人と番号です', ADDRESS_ITEMS,
                 [['%04d' % (i + 1)] + row for i, row in enumerate(rows[1:])])


class Dice:
    """A generator of our own, so that the samples never change with the version of Python."""

    def __init__(self, seed):
        self.state = seed

    def uniform(self):
        self.state = (self.state * 6364136223846793005 + 1442695040888963407) % 2 ** 64
        return (self.state >> 11) / 2 ** 53

    def normal(self):
        return sum(self.uniform() for _ in range(12)) - 6

    def below(self, n):
        return int(self.uniform() * n)


# One question a row: the correct answer (1 to 5), its points, how hard it is (in standard deviations of ability).
QUESTIONS = [('3', 8, -1.8), ('1', 8, -1.4), ('5', 8, -1.1), ('2', 8, -0.9), ('4', 10, -0.6),
             ('1', 10, -0.4), ('3', 10, -0.2), ('5', 12, 0.1), ('2', 12, 0.4), ('4', 14, 0.8)]
SURNAMES = '青木 井川 上原 江口 大久保 金井 菊地 久保 小泉 桜井 島田 須藤 関口 曽我 高木'.split()
GIVEN = {1: '明 泉 歌子 栄太 修 香 清 邦彦 恵子 早紀 志郎 純 聖子 宗一 妙子'.split(),
         2: '千代 剛志 徹 奈々 仁美 信夫 春香 弘 文子 穂高 正人 美穂 睦 萌 康子'.split(),
         3: 'ゆかり 洋平 蘭 理恵 瑠美 玲 六郎 若葉 葵 一平 海 えり 薫 希 くるみ'.split()}
ABSENT = {7: '*', 24: '', 38: '*'}      # person by number from 0: what stands in every cell but the ID item


def answers(dice):
    ability = 0.6 * dice.normal()
    given = []
    for number, (correct, _, hardness) in enumerate(QUESTIONS):
        if dice.uniform() < 1 / (1 + math.exp(-1.7 * (ability - hardness))):
            given.append(correct)
        elif dice.uniform() < 0.06 + 0.015 * number:      # given up: a blank, oftener towards the end
            given.append('')
        else:
            given.append([c for c in '12345' if c != correct][dice.below(4)])
    return given


def sample_exam():
    """The name stands in the ID item: scoring takes a person for absent when all other items are "*" or blank."""
    items = [('番号と氏名', 'L', 24)] + [('問%d' % (i + 1), 'L', 1) for i in range(len(QUESTIONS))]
    items += [('素点', 'R', 4), ('ｚ', 'R', 8), ('Z得点', 'R', 4), ('5段階値', 'R', 2), ('組', 'R', 2)]
    dice, records = Dice(20261122), []
    for person in range(45):
        group, seat = person // 15 + 1, person % 15
        name = '%d%02d %s　%s' % (group, seat + 1, SURNAMES[(seat * 4 + group) % 15], GIVEN[group][seat])
        given = answers(dice)
        if person in ABSENT:
            mark = ABSENT[person]
            records.append([name] + [mark] * len(QUESTIONS) + [''] * 4 + [mark])
        else:
            records.append([name] + given + [''] * 4 + [str(group)])
    return Table('サンプル試験結果 10問100点満点 *は欠席', items, records)


def sample_board():
    """Name, the items of raw score, z, T and five-level value, then item, correct answer and points by question."""
    lines = ['サンプル試験結果.000', '11', '12', '13', '14']
    for number, (correct, points, _) in enumerate(QUESTIONS):
        lines += [str(number + 1), correct, str(points)]
    return b''.join(sjis(line) + b'\r\n' for line in lines)


def example():
    return Table('会員名簿', [('ID No', 'L', 6), ('氏名', 'L', 20), ('点数', 'R', 5)],
                 [['000001', '髙橋　花子', '85'], ['000002', 'ﾔﾏﾀﾞ ﾀﾛｳ', '100'], ['000003', '十河　ソノ子', '']])


TABLES = {'m1': account_book(), 'm2': Table('アドレス帖', ADDRESS_ITEMS),
          's10': grid('20バイト10項目集計表', 10, 'L', 20), 's50': grid('4バイト50項目集計表', 50, 'R', 4),
          's100': grid('2バイト100項目集計表', 100, 'R', 2),
          # The ID item alone: a full line goes on in the next one, as on paper.
          'g40': Table('1行40バイト原稿用紙', [('原稿', 'L', 40)]),
          'サンプル住所録': sample_addresses(), 'サンプル試験結果': sample_exam()}


def write(folder, name, data):
    with open(os.path.join(folder, name), 'wb') as f:
        f.write(data)


def main():
    os.makedirs(STOCK, exist_ok=True)
    os.makedirs(EXAMPLE, exist_ok=True)
    for name, table in TABLES.items():
        write(STOCK, name + '.___', table.data_file())
        write(STOCK, 'k' + name + '.___', table.item_file())
    write(STOCK, 'サンプル試験結果.0__', sample_board())
    write(EXAMPLE, '会員名簿.txt', example().data_file())
    write(EXAMPLE, 'K会員名簿.txt', example().item_file())


if __name__ == '__main__':
    main()
