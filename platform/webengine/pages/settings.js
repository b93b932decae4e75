'use strict';
(() => {
    const token = document.querySelector('meta[name=token]').content;
    const part = (id) => document.getElementById(id);
    const switches = ['https_first', 'spell_check', 'notifications', 'keep_site_data', 'keep_cache'];
    const zooms = [0.25, 0.33, 0.5, 0.67, 0.75, 0.8, 0.9, 1, 1.1, 1.25, 1.5, 1.75, 2, 2.5, 3, 4, 5];
    const percent = (zoom) => Math.round(zoom * 100) + ' %';

    function ask(what, of, value) {
        const request = new XMLHttpRequest();
        const query = new URLSearchParams({what: what, of: of || '', value: value === undefined ? '' : value});
        request.open('POST', '/do?' + query);
        request.setRequestHeader('X-Brindlepost-Token', token);
        request.onload = () => show(JSON.parse(request.responseText));
        request.send();
    }

    function say(id, words) {
        part(id).textContent = words;
        part(id).hidden = !words;
    }

    function choose(select, options, chosen) {
        select.replaceChildren();
        for (const [value, words] of options) {
            const option = document.createElement('option');
            option.value = value;
            option.textContent = words;
            option.selected = String(value) === String(chosen);
            select.append(option);
        }
    }

    function siteRow(site) {
        const row = document.createElement('tr');
        const name = document.createElement('td');
        name.textContent = site.site.replace(/^https:\/\//, '');
        const what = document.createElement('td');
        what.textContent = site.zoom ? 'size ' + percent(site.zoom) :
                                       site.ability + (site.allowed ? ': allowed' : ': blocked');
        const last = document.createElement('td');
        const forget = document.createElement('button');
        forget.textContent = 'Forget';
        forget.setAttribute('aria-label', 'Forget ' + what.textContent + ' of ' + name.textContent);
        forget.onclick = () => site.zoom ? ask('forget_zoom', site.site) :
                                           ask('forget_permission', site.site, site.ability);
        last.append(forget);
        row.append(name, what, last);
        return row;
    }

    function show(state) {
        say('trouble', state.trouble);
        const engines = state.engines.map((engine) => [engine.key, engine.name]);
        choose(part('search_engine'), [['', (state.built_in_search || 'the program\'s own') + ' (built in)']].concat(engines), state.search_engine);
        const sizes = zooms.includes(state.zoom) ? zooms : zooms.concat(state.zoom).sort((a, b) => a - b);
        choose(part('zoom'), sizes.map((zoom) => [zoom, percent(zoom)]), state.zoom);
        for (const name of switches) part(name).checked = state[name];
        part('kept_note').textContent = state.keeps_sites ?
            'What sites keep belongs to you and is in a folder of your own.' :
            'Nothing is kept now: you keep no history, or the folder for it cannot be written.';
        part('sites').tBodies[0].replaceChildren(...state.sites.map(siteRow));
        part('sites').hidden = part('forget_sites').hidden = state.sites.length === 0;
        part('no_sites').hidden = state.sites.length > 0;
        part('favourites').hidden = !state.can_import && !state.can_export;
        part('import').hidden = !state.can_import;
        part('export').hidden = !state.can_export;
        say('words', state.words);
        document.body.dataset.shown = 'yes';
    }

    for (const name of ['search_engine', 'zoom'])
        part(name).onchange = () => ask(name, '', part(name).value);
    for (const name of switches)
        part(name).onchange = () => ask(name, '', part(name).checked);
    for (const name of ['import', 'export', 'forget_sites'])
        part(name).onclick = () => ask(name);
    addEventListener('focus', () => ask('state'));
    ask('state');
})();
