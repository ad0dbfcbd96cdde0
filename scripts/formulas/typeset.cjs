// Sets TeX with MathJax and turns what it draws into glyphs, rules and their places.
'use strict';

const {mathjax} = require('mathjax-full/js/mathjax.js');
const {TeX} = require('mathjax-full/js/input/tex.js');
const {SVG} = require('mathjax-full/js/output/svg.js');
const {liteAdaptor} = require('mathjax-full/js/adaptors/liteAdaptor.js');
const {RegisterHTMLHandler} = require('mathjax-full/js/handlers/html.js');
require('mathjax-full/js/input/tex/AllPackages.js');
const {STATE} = require('mathjax-full/js/core/MathItem.js');
const {SerializedMmlVisitor} = require('mathjax-full/js/core/MmlTree/SerializedMmlVisitor.js');
const speech = require('speech-rule-engine');

const adaptor = liteAdaptor();
RegisterHTMLHandler(adaptor);
const stopAtMistakes = (jax, error) => { throw error; };
const texInput = new TeX({packages: ['base', 'ams'], formatError: stopAtMistakes});
const mathDocument = mathjax.document('', {InputJax: texInput, OutputJax: new SVG({fontCache: 'local'})});
const serializer = new SerializedMmlVisitor();

const glyphs = new Map();

/// The outlines of all glyphs used so far, by name.
exports.outlines = () => glyphs;

/// "MJX-12-TEX-I-1D465" is the glyph "I1D465" of every formula.
const glyphName = id => id.replace(/^MJX-\d+-TEX-/, '').replace('-', '');

/// A place: x and y of the origin and the scale along both axes.
const start = {x: 0, y: 0, sx: 1, sy: 1};
const moved = (place, x, y) => ({...place, x: place.x + x * place.sx, y: place.y + y * place.sy});
const scaled = (place, sx, sy) => ({...place, sx: place.sx * sx, sy: place.sy * sy});

function transformed(place, transform) {
    for (const [, name, values] of (transform || '').matchAll(/(\w+)\(([^)]*)\)/g)) {
        const [first, second] = values.split(/[ ,]+/).map(Number);
        if (name === 'translate') {
            place = moved(place, first, second || 0);
        } else if (name === 'scale') {
            place = scaled(place, first, second === undefined ? first : second);
        } else {
            throw new Error(`unknown transform ${name}`);
        }
    }
    return place;
}

/// Writes what a node draws: "NAME x y" a glyph, "r x y w h" a rule, and before a glyph "s scale" where it
/// changes, "z sx sy" where it differs by axis, "c x y w h" where only a part shows. Thousandths of an em.
class Drawing {
    parts = [];
    scale = 1;

    add(node, place, clip) {
        const attribute = name => adaptor.getAttribute(node, name);
        place = transformed(place, attribute('transform'));
        switch (adaptor.kind(node)) {
        case 'defs':
            for (const path of adaptor.childNodes(node)) {
                if (adaptor.getAttribute(path, 'd')) { // blanks and marks of application have none
                    glyphs.set(glyphName(adaptor.getAttribute(path, 'id')), adaptor.getAttribute(path, 'd'));
                }
            }
            return;
        case 'use':
            this.addGlyph(glyphName(attribute('xlink:href').slice(1)), place, clip);
            return;
        case 'rect':
            this.addRule(moved(place, Number(attribute('x') || 0), Number(attribute('y') || 0)),
                Number(attribute('width')), Number(attribute('height')));
            return;
        case 'line': { // between the columns and rows of a table
            const [x1, y1, x2, y2] = ['x1', 'y1', 'x2', 'y2'].map(name => Number(attribute(name) || 0));
            const width = 50;
            this.addRule(moved(place, Math.min(x1, x2) - width / 2, Math.min(y1, y2) - width / 2),
                Math.abs(x2 - x1) + width, Math.abs(y2 - y1) + width);
            return;
        }
        case 'svg': { // the middle of a bracket in parts: a piece stretched, and cut at the joints
            const [x, y, width, height] = attribute('viewBox').split(' ').map(Number);
            const corner = moved(place, Number(attribute('x') || 0), Number(attribute('y') || 0));
            const inner = scaled(corner, Number(attribute('width')) / width, Number(attribute('height')) / height);
            const area = [corner.x, corner.y, Number(attribute('width')) * place.sx, Number(attribute('height')) * place.sy];
            this.addChildren(node, moved(inner, -x, -y), area);
            return;
        }
        case 'g':
            this.addChildren(node, place, clip);
            return;
        default:
            throw new Error(`no glyph for “${adaptor.textContent(node)}”`);
        }
    }

    addChildren(node, place, clip) {
        adaptor.childNodes(node).forEach(child => this.add(child, place, clip));
    }

    addGlyph(name, place, clip) {
        if (!glyphs.has(name)) {
            return;
        }
        const thousandths = value => Math.round(value * 1000);
        if (clip) {
            this.parts.push('c', ...clip.map(Math.round));
        }
        if (thousandths(place.sx) !== thousandths(place.sy)) {
            this.parts.push('z', thousandths(place.sx), thousandths(place.sy));
            this.scale = undefined;
        } else if (this.scale !== place.sx) {
            this.parts.push('s', thousandths(place.sx));
            this.scale = place.sx;
        }
        this.parts.push(name, Math.round(place.x), Math.round(place.y));
    }

    addRule(place, width, height) {
        this.parts.push('r', Math.round(place.x), Math.round(place.y), Math.round(width * place.sx),
            Math.round(height * place.sy));
    }
}

/// What the speech rules cannot know from the signs alone.
const spokenText = (tex, speech) => speech.replace(/\bl n\b/g, 'natural logarithm')
    .replace(/raised to the composed with power/g, 'degrees').replace(/the 2 by 1 column matrix/g, tex.includes('\\binom') ? 'the binomial coefficient' : '$&')
    .replace(/the (\S+?)-th power of f of/g, tex.includes('^{(') ? '$1-th derivative of f of' : '$&');

/// The drawing, its size (width, height above and below the line), what it says and its tree.
exports.setFormula = tex => {
    const tree = mathDocument.convert(tex, {display: true, end: STATE.CONVERT});
    const svg = adaptor.firstChild(mathDocument.convert(tex, {display: true}));
    const [, top, width, height] = adaptor.getAttribute(svg, 'viewBox').split(' ').map(Number);
    const drawing = new Drawing();
    for (const child of adaptor.childNodes(svg)) { // the first group turns the y axis up, as glyphs have it
        adaptor.kind(child) === 'g' ? drawing.addChildren(child, start) : drawing.add(child, start);
    }
    return {
        size: [width, -top, height + top].map(Math.round),
        drawing: drawing.parts.join(' '),
        spoken: spokenText(tex, speech.toSpeech(serializer.visitTree(tree)).replace(/\s+/g, ' ').trim()),
        tree,
    };
};

exports.ready = async () => {
    await speech.engineReady();
    speech.setupEngine({locale: 'en', domain: 'clearspeak', modality: 'speech'});
    await speech.engineReady();
};
