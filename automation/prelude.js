// The script library: test(), expect(), console and the "ui" object.
(function (g) {
    function show(v) {
        if (typeof v === 'string') return JSON.stringify(v);
        if (v === undefined) return 'undefined';
        try { return JSON.stringify(v); } catch (e) { return String(v); }
    }
    function deepEqual(a, b) {
        if (a === b) return true;
        if (a !== a && b !== b) return true;
        if (typeof a !== 'object' || typeof b !== 'object' || a === null || b === null) return false;
        if (Array.isArray(a) !== Array.isArray(b)) return false;
        var ka = Object.keys(a), kb = Object.keys(b);
        if (ka.length !== kb.length) return false;
        for (var i = 0; i < ka.length; ++i)
            if (!deepEqual(a[ka[i]], b[ka[i]])) return false;
        return true;
    }
    function matchers(actual, negate) {
        function check(ok, what) {
            if (ok === negate)
                throw new Error('expected ' + show(actual) + (negate ? ' not ' : ' ') + what);
        }
        return {
            toBe: function (e) { check(actual === e || (actual !== actual && e !== e), 'to be ' + show(e)); },
            toEqual: function (e) { check(deepEqual(actual, e), 'to equal ' + show(e)); },
            toContain: function (e) {
                var has = actual != null && (typeof actual === 'string' ? actual.indexOf(String(e)) >= 0
                    : Array.prototype.some.call(actual, function (x) { return deepEqual(x, e); }));
                check(has, 'to contain ' + show(e));
            },
            toBeTruthy: function () { check(!!actual, 'to be truthy'); },
            toBeFalsy: function () { check(!actual, 'to be falsy'); },
            toBeNull: function () { check(actual === null, 'to be null'); },
            toBeGreaterThan: function (e) { check(actual > e, 'to be greater than ' + show(e)); },
            toBeLessThan: function (e) { check(actual < e, 'to be less than ' + show(e)); },
            toBeCloseTo: function (e, digits) {
                var d = digits === undefined ? 2 : digits;
                check(typeof actual === 'number' && Math.abs(actual - e) < Math.pow(10, -d) / 2,
                      'to be close to ' + show(e) + ' (' + d + ' digits)');
            },
            toThrow: function (text) {
                var thrown = null;
                try { actual(); } catch (err) { thrown = err; }
                var ok = thrown !== null && (text === undefined || String(thrown.message || thrown).indexOf(text) >= 0);
                if (ok === negate)
                    throw new Error('expected the function' + (negate ? ' not' : '') + ' to throw'
                                    + (text === undefined ? '' : ' ' + show(text))
                                    + (thrown ? ', it threw ' + show(String(thrown.message || thrown)) : ''));
            }
        };
    }
    g.expect = function (actual) {
        var m = matchers(actual, false);
        m.not = matchers(actual, true);
        return m;
    };
    g.test = function (name, fn) {
        try {
            fn();
            __report.pass(String(name));
        } catch (e) {
            var detail = (e && e.message !== undefined) ? e.message : String(e);
            if (e && e.lineNumber) detail += ' (line ' + e.lineNumber + ')';
            __report.fail(String(name), detail);
        }
    };
    g.console = {
        log: function () {
            __report.log(Array.prototype.map.call(arguments, function (a) {
                return typeof a === 'string' ? a : show(a);
            }).join(' '));
        }
    };
    g.console.error = g.console.log;
    g.ui = {
        window: function (n) { return __ui.window(String(n)); },
        windows: function () { return __ui.windows(); },
        show: function (n, modal) { __ui.show(String(n), !!modal); },
        menu: function (n) { return __ui.menu(String(n)); },
        answer: function () {
            __ui.answerList(Array.prototype.map.call(arguments, function (a) { return String(a); }));
        },
        pendingAnswers: function () { return __ui.pendingAnswers(); },
        messages: function () { return __ui.messages(); },
        clearMessages: function () { __ui.clearMessages(); },
        cursor: function () { return __ui.cursor(); },
        helpTopic: function () { return __ui.helpTopic(); },
        showHelp: function (n) { __ui.showHelp(Number(n)); },
        idle: function () { __ui.idle(); }
    };
    g.__expose = function (name, bridge, names) {
        var o = {};
        names.forEach(function (n) {
            o[n] = function () { return bridge.invoke(n, Array.prototype.slice.call(arguments)); };
        });
        g[name] = o;
    };
})(this);
