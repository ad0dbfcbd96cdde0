// make.cjs RESOURCES: reads the TeX of all pages, writes a file of drawings a page and one table of the
// glyphs that they share. What the files hold is told in calculator/pages/FormulaArtwork.h.
'use strict';

const fs = require('fs');
const path = require('path');
const {setFormula, outlines, ready} = require('./typeset.cjs');
const {plainText} = require('./plain.cjs');

/// The TeX of a page's formulas, in order; a line that begins with a blank goes on with the one before.
function formulasOf(pageText) {
    const lines = pageText.replace(/\n[ \t]+/g, ' ').split('\n');
    return lines.filter(line => line.startsWith('formula ')).map(line => line.slice('formula '.length).trim());
}

/// FNV-1a with 64 bits, of the bytes in UTF-8, so that the program can tell whether a drawing is of its TeX.
function hash(text) {
    let value = 0xcbf29ce484222325n;
    for (const byte of Buffer.from(text, 'utf8')) {
        value = ((value ^ BigInt(byte)) * 0x100000001b3n) & 0xffffffffffffffffn;
    }
    return value.toString(16).padStart(16, '0');
}

function pagesIn(folder) {
    return fs.readdirSync(folder, {recursive: true}).filter(name => name.endsWith('.page'))
        .map(name => path.join(folder, name)).sort();
}

async function main(resources) {
    await ready();
    const target = path.join(resources, 'formulas');
    fs.rmSync(target, {recursive: true, force: true});
    fs.mkdirSync(target, {recursive: true});
    let count = 0;
    for (const page of pagesIn(path.join(resources, 'pages'))) {
        const formulas = formulasOf(fs.readFileSync(page, 'utf8'));
        if (formulas.length === 0) {
            continue;
        }
        const blocks = formulas.map(tex => {
            try {
                const set = setFormula(tex);
                return `formula ${hash(tex)} ${set.size.join(' ')}\nplain ${plainText(set.tree)}\n` +
                    `spoken ${set.spoken}\ndraw ${set.drawing}\n`;
            } catch (problem) {
                throw new Error(`${page}: ${tex}: ${problem.message}`);
            }
        });
        count += blocks.length;
        fs.writeFileSync(path.join(target, path.basename(page, '.page') + '.formulas'), blocks.join(''));
    }
    const glyphs = [...outlines()].sort(([a], [b]) => (a < b ? -1 : 1));
    fs.writeFileSync(path.join(target, 'Glyphs.outlines'), glyphs.map(([name, d]) => `${name} ${d}\n`).join(''));
    console.log(`${count} formulas, ${glyphs.length} glyphs`);
}

main(process.argv[2]).catch(problem => {
    console.error(problem.message);
    process.exitCode = 1;
});
