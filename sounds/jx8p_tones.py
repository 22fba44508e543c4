"""Tones for the JX-8P and the MKS-70, by what the panel says. What is not
named keeps its start value (make_sounds.py). Envelopes are attack, decay,
sustain, release."""

jx8p_tones = {
    # -- brass --------------------------------------------------------------
    "WARM BRASS": dict(
        dco2_fine=70, mix_dco2=115, cutoff=42, vcf_env=70, vcf_key=60,
        vcf_dynamics=1, env1=(22, 60, 70, 38), env2=(12, 40, 115, 34),
        chorus=1, lfo_delay=70, dco1_lfo=4, dco2_lfo=4),
    "BRIGHT BRS": dict(
        dco2_fine=58, mix_dco2=127, cutoff=50, resonance=12, vcf_env=90,
        vcf_dynamics=2, env1=(14, 66, 60, 30), env2=(4, 50, 120, 28),
        vca_dynamics=2),
    "FRENCH HRN": dict(
        dco1_wave="pulse", dco2_wave="saw", mix_dco1=90, mix_dco2=70,
        cutoff=34, vcf_env=46, vcf_key=74, env1=(34, 70, 60, 40),
        env2=(26, 30, 118, 40), hpf=0, lfo_delay=84, dco1_lfo=5, dco2_lfo=5),
    "FALL BRASS": dict(
        dco1_env=12, dco2_env=12, dco_mode="env1", dco2_fine=74, mix_dco2=120,
        cutoff=46, vcf_env=82, env1=(18, 74, 40, 54), env2=(6, 60, 110, 40),
        vcf_dynamics=2, chorus=2),
    # -- strings ------------------------------------------------------------
    "SILKSTRING": dict(
        dco1_range="8'", dco2_range="4'", dco2_fine=72, mix_dco1=120,
        mix_dco2=84, hpf=2, cutoff=76, vcf_key=70, env2=(48, 60, 110, 66),
        chorus=2, dco1_lfo=4, dco2_lfo=4, lfo_delay=60, lfo_rate=70),
    "LOWSTRINGS": dict(
        dco1_range="16'", dco2_range="8'", dco2_fine=57, mix_dco2=110,
        hpf=0, cutoff=64, env2=(36, 60, 112, 58), chorus=1),
    "FASTSTRING": dict(
        dco2_fine=76, mix_dco2=124, hpf=2, cutoff=88, vcf_env=20,
        env1=(6, 50, 40, 40), env2=(14, 50, 112, 44), vca_dynamics=2,
        chorus=2),
    "PIZZICATO": dict(
        dco1_wave="saw", dco2_wave="pulse", dco2_range="4'", mix_dco2=60,
        hpf=1, cutoff=48, vcf_env=74, env1=(0, 44, 0, 36),
        env2=(0, 54, 0, 46), vcf_dynamics=2, vca_dynamics=2, chorus=1),
    "SOLOVIOLIN": dict(
        dco1_wave="saw", hpf=2, cutoff=80, resonance=18, vcf_key=80,
        env2=(30, 40, 118, 34), dco1_lfo=10, lfo_delay=72, lfo_rate=82,
        key_mode="solo1", portamento=20, porta_switch="on"),
    # -- pads ---------------------------------------------------------------
    "SOFT PAD": dict(
        dco1_wave="pulse", dco2_wave="saw", dco2_fine=70, mix_dco2=112,
        cutoff=46, vcf_env=24, env1=(70, 80, 60, 80), env2=(62, 70, 110, 84),
        chorus=2),
    "SWEEP PAD": dict(
        dco2_fine=75, mix_dco2=127, cutoff=20, resonance=62, vcf_env=84,
        env1=(90, 96, 40, 92), env2=(44, 70, 120, 90), chorus=2),
    "GLASS PAD": dict(
        dco1_wave="pulse", dco2_wave="pulse", dco2_range="2'", crossmod="xmod",
        dco2_tune=7, mix_dco1=100, mix_dco2=48, hpf=2, cutoff=84,
        env2=(54, 80, 90, 90), chorus=2, vcf_lfo=8, lfo_rate=40),
    "CHOIR PAD": dict(
        dco1_wave="pulse", dco2_wave="pulse", dco2_fine=73, mix_dco2=112,
        hpf=1, cutoff=58, resonance=46, vcf_key=100, env2=(46, 60, 114, 62),
        dco1_lfo=6, dco2_lfo=7, lfo_delay=50, chorus=2),
    "SLOW NIGHT": dict(
        dco1_range="16'", dco2_wave="square", dco2_fine=54, mix_dco2=96,
        cutoff=30, resonance=34, vcf_env=40, vcf_mode="env1", vcf_lfo=12,
        lfo_rate=22, env1=(100, 90, 60, 96), env2=(72, 70, 116, 98),
        chorus=2),
    # -- basses -------------------------------------------------------------
    "ROUND BASS": dict(
        dco1_range="16'", dco1_wave="square", dco2_range="16'", mix_dco1=127,
        mix_dco2=70, dco2_fine=67, cutoff=34, vcf_env=56, vcf_key=40,
        env1=(0, 52, 20, 24), env2=(0, 70, 90, 22), vcf_dynamics=2,
        vca_dynamics=2),
    "SYNC BASS": dict(
        dco1_range="16'", dco2_range="16'", crossmod="sync1", dco2_tune=7,
        dco2_env=40, mix_dco1=100, mix_dco2=110, cutoff=52, vcf_env=50,
        env1=(0, 50, 20, 24), env2=(0, 64, 84, 20), vca_dynamics=2),
    "REZZ BASS": dict(
        dco1_range="16'", cutoff=22, resonance=88, vcf_env=74, vcf_key=50,
        env1=(0, 46, 12, 22), env2=(0, 60, 100, 18), vcf_dynamics=2,
        key_mode="solo1"),
    "PICK BASS": dict(
        dco1_range="16'", dco1_wave="pulse", dco2_range="8'", dco2_wave="saw",
        mix_dco2=52, mix_env=40, hpf=1, cutoff=46, vcf_env=68,
        env1=(0, 40, 10, 24), env2=(0, 66, 50, 24), vcf_dynamics=3,
        vca_dynamics=2),
    # -- leads --------------------------------------------------------------
    "FAT LEAD": dict(
        dco2_fine=76, mix_dco2=127, cutoff=82, vcf_env=30,
        env1=(0, 60, 50, 30), env2=(2, 50, 120, 30), key_mode="unison1",
        unison_detune=76, portamento=28, porta_switch="on", dco1_lfo=5,
        dco2_lfo=5, lfo_delay=64, bend_range=7),
    "SQUARELEAD": dict(
        dco1_wave="square", dco2_wave="square", dco2_fine=68, mix_dco2=90,
        cutoff=78, resonance=20, env2=(2, 40, 122, 24), key_mode="solo1",
        portamento=34, porta_switch="on", dco1_lfo=8, dco2_lfo=8,
        lfo_delay=66, bend_range=7),
    "SYNC LEAD": dict(
        crossmod="sync1", dco2_tune=12, dco2_env=66, mix_dco1=60,
        mix_dco2=127, cutoff=100, env1=(4, 74, 30, 40), env2=(0, 40, 120, 30),
        key_mode="solo1", bend_range=7),
    "FLUTE LEAD": dict(
        dco1_wave="square", dco2_wave="noise", mix_dco1=120, mix_dco2=10,
        mix_env=14, cutoff=48, vcf_env=16, vcf_key=96, env1=(8, 40, 40, 20),
        env2=(20, 40, 116, 26), dco1_lfo=7, lfo_delay=60),
    # -- organs -------------------------------------------------------------
    "FULL ORGAN": dict(
        dco1_range="16'", dco1_wave="square", dco2_range="4'",
        dco2_wave="square", mix_dco2=100, cutoff=96, vca_mode="gate",
        vca_dynamics=0, chorus=2),
    "JAZZ ORGAN": dict(
        dco1_range="16'", dco1_wave="square", dco2_range="2'",
        dco2_wave="square", dco2_tune=-5, mix_dco2=58, mix_env=46,
        cutoff=70, env1=(0, 30, 0, 20), vca_mode="gate", vca_dynamics=0,
        chorus=1, dco1_lfo=2, lfo_rate=86),
    "PIPE ORGAN": dict(
        dco1_range="8'", dco1_wave="pulse", dco2_range="2'",
        dco2_wave="square", dco2_fine=67, mix_dco2=70, hpf=1, cutoff=90,
        env2=(10, 30, 122, 40), vca_dynamics=0, chorus=2),
    # -- bells and plucked --------------------------------------------------
    "TUBE BELL": dict(
        dco1_wave="square", dco2_wave="square", dco2_range="2'",
        crossmod="xmod", dco2_tune=6, mix_dco1=110, mix_dco2=40, cutoff=96,
        env2=(0, 92, 0, 88), vca_dynamics=2, vcf_dynamics=2),
    "MUSIC BOX": dict(
        dco1_range="2'", dco1_wave="square", dco2_range="2'",
        dco2_wave="pulse", crossmod="xmod", dco2_tune=12, mix_dco2=30, hpf=2,
        cutoff=90, env2=(0, 64, 0, 62), vca_dynamics=2, chorus=1),
    "KALIMBA": dict(
        dco1_range="4'", dco1_wave="square", dco2_wave="square",
        dco2_range="2'", dco2_tune=7, mix_dco2=26, mix_env=50, cutoff=54,
        vcf_env=40, env1=(0, 34, 0, 30), env2=(0, 58, 0, 52),
        vca_dynamics=2, vcf_dynamics=2),
    "E PIANO": dict(
        dco1_wave="pulse", dco2_range="2'", dco2_wave="square",
        crossmod="xmod", mix_dco1=120, mix_dco2=22, mix_env=36,
        mix_dynamics=2, cutoff=66, vcf_env=26, env1=(0, 62, 0, 50),
        env2=(0, 88, 20, 40), vca_dynamics=2, vcf_dynamics=2, chorus=2,
        env2_key=1),
    "CLAVI": dict(
        dco1_wave="pulse", dco2_wave="saw", mix_dco2=60, hpf=3, cutoff=60,
        resonance=30, vcf_env=60, env1=(0, 50, 16, 18), env2=(0, 74, 40, 14),
        vcf_dynamics=2, vca_dynamics=2),
    # -- effects ------------------------------------------------------------
    "SEA WIND": dict(
        dco1_wave="noise", mix_dco1=127, cutoff=40, resonance=40, vcf_lfo=50,
        vcf_key=0, lfo_rate=16, lfo_wave="triangle", env2=(80, 80, 120, 100),
        vca_dynamics=0, chorus=2),
    "ALIEN CALL": dict(
        crossmod="sync2", dco1_lfo=40, dco2_lfo=70, dco2_tune=5, mix_dco2=127,
        lfo_wave="random", lfo_rate=92, cutoff=70, resonance=70,
        env2=(10, 60, 100, 70), chorus=2),
    "LASER": dict(
        dco1_env=110, dco2_env=110, dco_mode="env1", mix_dco2=100, cutoff=90,
        resonance=40, env1=(0, 50, 0, 40), env2=(0, 60, 0, 54),
        vca_dynamics=2),
    "CLOCKWORK": dict(
        dco1_wave="square", dco1_lfo=30, lfo_wave="square", lfo_rate=88,
        cutoff=60, resonance=60, vcf_lfo=40, env2=(0, 50, 80, 30),
        chorus=1),
}
