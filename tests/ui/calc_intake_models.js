// Allometric intake models built row by row: the equation text word for word, the unit name, and the base
// and adjusted rates for air, water and food energy with their weight unit factors, in single precision.

let nextRef = 930000;

function unit(description, factor) {
    const id = ++nextRef;
    db.exec('Insert Into tblUnits (UnitsID, Description, Factor) Values (' + id + ', '
            + (description === null ? 'Null' : "'" + description + "'") + ', '
            + (factor === null ? 'Null' : factor) + ')');
    return id;
}

function model(o) {
    const cols = Object.assign({ IntakeModelID: ++nextRef, IntakeTypeID: 3 }, o);
    const names = Object.keys(cols);
    db.exec('Insert Into tblIntakeModel (' + names.join(', ') + ') Values ('
            + names.map(n => cols[n] === null ? 'Null' : String(cols[n])).join(', ') + ')');
    return cols.IntakeModelID;
}

function errorBoxes(routine) {
    return ui.messages().filter(m => m.text.indexOf('Error in routine ' + routine + '\r\n\r\n') === 0);
}

// base = U * (a * (F * weight) ^ b): a and b are single-precision columns, the power is taken in double
// precision from their single values, and the weight product and the result are rounded to single
function base(a, b, factor, ucf, weight) {
    const w = Math.fround(Math.fround(factor) * Math.fround(weight));
    return Math.fround(Math.fround(ucf) * (Math.fround(a) * Math.pow(w, Math.fround(b))));
}

const kg = unit('kg', 0.001);
const grams = unit('g', 1);
const nearlyGrams = unit('g*', 1.0001);
const kcal = unit('kcal/day', null);
const litres = unit('L/day', null);
const air = unit('m3/day', null);

test('the equation text with a weight factor, UCF 1 and MMF 2.5', () => {
    const id = model({ a: 5, b: 0.75, UCF: 1, MMF: 2.5, WtUnitsID: kg, FinalUnitsID: kcal, EqnUnitsID: kcal });
    expect(calc.GetIntakeEquationText(id, 'Equation')).toBe('kcal/day = 5 * (Wt(g)*0.001)^ 0.75*2.5');
    expect(calc.GetIntakeEquationText(id, 'Units')).toBe('kcal/day');
    expect(calc.GetIntakeEquationText(id, 'anything')).toBe('kcal/day');
});

test('a factor of exactly 1 has no parentheses; 1.0001 has them', () => {
    const one = model({ a: 5, b: 0.75, UCF: 1, MMF: 2.5, WtUnitsID: grams, FinalUnitsID: kcal });
    expect(calc.GetIntakeEquationText(one, 'Equation')).toBe('kcal/day = 5 * Wt(g)^ 0.75*2.5');
    const near = model({ a: 5, b: 0.75, UCF: 1, MMF: 1, WtUnitsID: nearlyGrams, FinalUnitsID: kcal });
    expect(calc.GetIntakeEquationText(near, 'Equation')).toBe('kcal/day = 5 * (Wt(g)*1.0001)^ 0.75');
});

test('UCF and MMF of 1 or null end the text with b; other values follow in order', () => {
    const ones = model({ a: 0.0687, b: 0.822, UCF: 1, MMF: 1, WtUnitsID: kg, FinalUnitsID: air });
    expect(calc.GetIntakeEquationText(ones, 'Equation')).toBe('m3/day = 0.0687 * (Wt(g)*0.001)^ 0.822');
    const nulls = model({ a: 0.099, b: 0.9, UCF: null, MMF: null, WtUnitsID: kg, FinalUnitsID: litres });
    expect(calc.GetIntakeEquationText(nulls, 'Equation')).toBe('L/day = 0.099 * (Wt(g)*0.001)^ 0.9');
    const both = model({ a: 1, b: 1, UCF: 2, MMF: 3, WtUnitsID: kg, FinalUnitsID: kcal });
    expect(calc.GetIntakeEquationText(both, 'Equation')).toBe('kcal/day = 1 * (Wt(g)*0.001)^ 1*2*3');
    const ucfOnly = model({ a: 1.5, b: -0.25, UCF: 4.184, MMF: 1, WtUnitsID: grams, FinalUnitsID: kcal });
    expect(calc.GetIntakeEquationText(ucfOnly, 'Equation')).toBe('kcal/day = 1.5 * Wt(g)^ -0.25*4.184');
});

test('a missing final unit or weight unit gives "No data available." and an empty unit name', () => {
    const noFinal = model({ a: 1, b: 1, UCF: 2, MMF: 3, WtUnitsID: kg, FinalUnitsID: 0 });
    expect(calc.GetIntakeEquationText(noFinal, 'Equation')).toBe('No data available.');
    expect(calc.GetIntakeEquationText(noFinal, 'Units')).toBe('');
    expect(calc.GetIntakeRate(noFinal, 1000, 'Adjusted')).toBe(6);       // the rate is still computed
    const noWeight = model({ a: 1, b: 1, UCF: 2, MMF: 3, WtUnitsID: 0, FinalUnitsID: kcal });
    expect(calc.GetIntakeEquationText(noWeight, 'Equation')).toBe('No data available.');
    expect(calc.GetIntakeEquationText(noWeight, 'Units')).toBe('');
    expect(calc.GetIntakeRate(noWeight, 1000, 'Base')).toBe(0);
    const noFactor = model({ a: 1, b: 1, UCF: 2, MMF: 3, WtUnitsID: kcal, FinalUnitsID: kcal });
    expect(calc.GetIntakeEquationText(noFactor, 'Equation')).toBe('No data available.');
});

test('an unknown model gives an empty text and a rate of 0 without a message', () => {
    ui.clearMessages();
    expect(calc.GetIntakeEquationText(999999, 'Equation')).toBe('');
    expect(calc.GetIntakeEquationText(999999, 'Units')).toBe('');
    expect(calc.GetIntakeRate(999999, 1000, 'Base')).toBe(0);
    expect(ui.messages().length).toBe(0);
});

test('weight 1000 g, a 1, b 1, factor 0.001, UCF 2, MMF 3: base 2, adjusted 6', () => {
    const id = model({ a: 1, b: 1, UCF: 2, MMF: 3, WtUnitsID: kg, FinalUnitsID: kcal });
    expect(calc.GetIntakeRate(id, 1000, 'Base')).toBe(Math.fround(2 * Math.fround(Math.fround(0.001) * 1000)));
    expect(calc.GetIntakeRate(id, 1000, 'Base')).toBeCloseTo(2, 6);
    expect(calc.GetIntakeRate(id, 1000, 'Adjusted')).toBeCloseTo(6, 6);
    expect(calc.GetIntakeRate(id, 1000, 'anything')).toBe(calc.GetIntakeRate(id, 1000, 'Adjusted'));
});

test('air, water and food rates with their weight unit factors, in single precision', () => {
    const airModel = model({ IntakeTypeID: 1, a: 0.4089, b: 0.8, UCF: 1, MMF: 1, WtUnitsID: kg, FinalUnitsID: air });
    const waterModel = model({ IntakeTypeID: 2, a: 0.059, b: 0.67, UCF: null, MMF: null, WtUnitsID: kg,
                               FinalUnitsID: litres });
    const foodModel = model({ IntakeTypeID: 3, a: 4.82, b: 0.734, UCF: 0.239, MMF: 2.5, WtUnitsID: grams,
                              FinalUnitsID: kcal });
    const weight = 350.5;
    const airBase = base(0.4089, 0.8, 0.001, 1, weight);
    expect(calc.GetIntakeRate(airModel, weight, 'Base')).toBe(airBase);
    expect(calc.GetIntakeRate(airModel, weight, 'Adjusted')).toBe(airBase);
    const waterBase = base(0.059, 0.67, 0.001, 1, weight);
    expect(calc.GetIntakeRate(waterModel, weight, 'Base')).toBe(waterBase);
    expect(calc.GetIntakeRate(waterModel, weight, 'Adjusted')).toBe(waterBase);
    const foodBase = base(4.82, 0.734, 1, 0.239, weight);
    expect(calc.GetIntakeRate(foodModel, weight, 'Base')).toBe(foodBase);
    expect(calc.GetIntakeRate(foodModel, weight, 'Adjusted')).toBe(Math.fround(foodBase * Math.fround(2.5)));
    // the hand figures: 0.4089 * 0.3505^0.8 = 0.176753; 0.059 * 0.3505^0.67 = 0.0292276;
    // 0.239 * 4.82 * 350.5^0.734 = 84.9662
    expect(calc.GetIntakeRate(airModel, weight, 'Base')).toBeCloseTo(0.176753, 5);
    expect(calc.GetIntakeRate(waterModel, weight, 'Base')).toBeCloseTo(0.0292276, 6);
    expect(calc.GetIntakeRate(foodModel, weight, 'Base')).toBeCloseTo(84.9662, 3);
});

test('a weight of 0 with a positive exponent gives 0; a null coefficient is reported', () => {
    const id = model({ a: 2, b: 0.5, UCF: 1, MMF: 1, WtUnitsID: kg, FinalUnitsID: kcal });
    ui.clearMessages();
    expect(calc.GetIntakeRate(id, 0, 'Adjusted')).toBe(0);
    expect(ui.messages().length).toBe(0);
    const noA = model({ a: null, b: 0.5, UCF: 1, MMF: 1, WtUnitsID: kg, FinalUnitsID: kcal });
    expect(calc.GetIntakeRate(noA, 100, 'Adjusted')).toBe(0);
    expect(errorBoxes('GetIntakeEquationText').length).toBe(1);
    expect(ui.cursor()).toBe('default');
});
