// A formula as a line of text that people read: "x = (−b ± √(b² − 4ac))/(2a)".
'use strict';

const raised = {'0': '⁰', '1': '¹', '2': '²', '3': '³', '4': '⁴', '5': '⁵', '6': '⁶', '7': '⁷', '8': '⁸', '9': '⁹', '−': '⁻', 'n': 'ⁿ', '+': '⁺'};
const lowered = {'0': '₀', '1': '₁', '2': '₂', '3': '₃', '4': '₄', '5': '₅', '6': '₆', '7': '₇', '8': '₈', '9': '₉', ',': ','};
const spaced = /^[=≈≠<>≤≥±∓+−→⇒⇔∈·⋅×≡∝]$/;
const applied = '\u2061';

const isAtom = text => /^[\p{L}\p{N}.∞′]+$|^\|[^|]*\|$/u.test(text) || isGroup(text);

/// Whether the brackets at both ends belong together.
function isGroup(text) {
    if (!text.startsWith('(') || !text.endsWith(')')) {
        return false;
    }
    let depth = 0;
    for (let i = 0; i < text.length; ++i) {
        depth += text[i] === '(' ? 1 : text[i] === ')' ? -1 : 0;
        if (depth === 0 && i < text.length - 1) {
            return false;
        }
    }
    return true;
}

/// What divides something and is more than one sign stands in brackets: "b/(2a)".
const isDivisor = text => isAtom(text) && !/^[\p{L}\p{N}.]{2,}$/u.test(text) || /^[\d.]+$|^\p{L}[₀-₉]+$/u.test(text);
const grouped = text => (isAtom(text) ? text : `(${text})`);

const superscript = text =>
    ([...text].every(character => raised[character]) ? [...text].map(character => raised[character]).join('')
        : /^[′∘∗†]+$/.test(text) ? text.replace('∘', '°') : `^${grouped(text)}`);
const subscript = text => ([...text].every(character => lowered[character])
    ? [...text].map(character => lowered[character]).join('') : text.length > 1 && !/^[\p{L}\p{N},]+$/u.test(text) ? `_(${text})` : `_${text}`);

function power(base, exponent) {
    return /^(sin|cos|tan|cot|ln|log|sinh|cosh)$/.test(base) ? base + superscript(exponent) + ' '
        : (isAtom(base) || base.endsWith(')') ? base : grouped(base)) + superscript(exponent);
}

const writers = {
    mfrac: ([top, bottom], node) =>
        (node.attributes.get('linethickness') === '0' ? `${top} over ${bottom}` : `${grouped(top)}/${isDivisor(bottom) ? bottom : `(${bottom})`}`),
    msqrt: children => `√${grouped(children.join(''))}`,
    mroot: ([radicand, degree]) => `${superscript(degree).replace('^', '')}√${grouped(radicand)}`,
    msup: ([base, exponent]) => power(base, exponent),
    msub: ([base, index]) => base + subscript(index.replace(/, /g, ',')),
    msubsup: ([base, index, exponent]) => limits(base, index, exponent),
    munder: ([base, under]) => `${base}(${under}) `,
    mover: ([base, over]) => (over === '→' ? `vector ${base}` : over === '¯' ? `mean ${base}` : base + over),
    munderover: ([base, under, over]) => limits(base, under, over),
    mtable: rows => rows.join('; '),
    mtr: cells => cells.join(', '),
};

/// Sums and integrals name their ends in words; elsewhere they are an index and a power.
const limits = (base, from, to) =>
    (/[∑∫∏]/.test(base) ? `${base}(${from} to ${to}) ` : base.trimEnd() + (/[\])|]$/.test(base) ? `(${from} to ${to})` : power(subscript(from), to)));

function write(node) {
    if (node.kind === 'text') {
        return node.getText();
    }
    const children = (node.childNodes || []).filter(child => child !== null).map(write);
    if (node.kind === 'mo') {
        const sign = children.join('');
        const isPrefix = node.attributes.get('form') === 'prefix' || node.getProperty('texClass') === undefined && node.texClass === 0;
        return sign === applied ? '' : spaced.test(sign) && !isPrefix ? ` ${sign} ` : sign === ',' || sign === ';' ? `${sign} ` : sign;
    }
    if (node.kind === 'mi' && children.join('').length > 1) {
        return ` ${children.join('')} `;
    }
    if (node.kind === 'mspace') {
        return ' ';
    }
    if (node.kind === 'mtable') {
        return rowsOf(node, children);
    }
    return writers[node.kind] ? writers[node.kind](children.map(child => child.trim()), node) : children.join('');
}

/// Lines of an aligned formula follow each other; a matrix is written row by row in brackets.
function rowsOf(node, children) {
    const isAligned = node.attributes.getExplicit('displaystyle') === true;
    return isAligned ? node.childNodes.map(row => row.childNodes.map(write).join('')).join('; ') : writers.mtable(children);
}

exports.plainText = tree => write(tree).replace(/\u2061/g, '').replace(/\s+/g, ' ').replace(/ ([,;)])/g, '$1')
    .replace(/\( /g, '(').replace(/ \(/g, (match, at, all) => (/(sin|cos|tan|cot|ln|log|sinh|cosh|tanh|arcsin|arccos|arctan|exp|max|min|det|Re|Im)$/.test(all.slice(0, at)) ? '(' : match)).trim();
