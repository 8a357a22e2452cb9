<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko_KR" sourcelanguage="en_US">
<context>
    <name>ActionButton</name>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
</context>
<context>
    <name>AlarmPanel</name>
    <message>
        <source>Alarm</source>
        <translation>경보</translation>
    </message>
    <message>
        <source>Judge the spectra by this preset</source>
        <translation>이 프리셋으로 스펙트럼 판정</translation>
    </message>
    <message>
        <source>Custom…</source>
        <translation>사용자 지정…</translation>
    </message>
    <message>
        <source>Set thresholds and frequencies yourself</source>
        <translation>임계값과 주파수를 직접 설정</translation>
    </message>
</context>
<context>
    <name>AlarmRuleEditor</name>
    <message>
        <source>From</source>
        <translation>하한 주파수</translation>
    </message>
    <message>
        <source>To (0: no limit)</source>
        <translation>상한 주파수(0: 없음)</translation>
    </message>
    <message>
        <source>Watch from</source>
        <translation>주의 임계값</translation>
    </message>
    <message>
        <source>Alarm from</source>
        <translation>경보 임계값</translation>
    </message>
    <message>
        <source>Spectra to raise</source>
        <translation>발생 프레임 수</translation>
    </message>
    <message>
        <source>Spectra to clear</source>
        <translation>해제 프레임 수</translation>
    </message>
    <message>
        <source>Use this rule</source>
        <translation>이 규칙 적용</translation>
    </message>
</context>
<context>
    <name>AppearanceMenu</name>
    <message>
        <source>&amp;System</source>
        <translation>시스템(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation>라이트(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Dark</source>
        <translation>다크(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Appearance</source>
        <translation>화면 모드(&amp;A)</translation>
    </message>
</context>
<context>
    <name>AttitudeCard</name>
    <message>
        <source>Attitude</source>
        <translation>자세</translation>
    </message>
    <message>
        <source>Roll</source>
        <translation>롤</translation>
    </message>
    <message>
        <source>Pitch</source>
        <translation>피치</translation>
    </message>
    <message>
        <source>Yaw</source>
        <translation>요</translation>
    </message>
</context>
<context>
    <name>AttitudeFigures</name>
    <message>
        <source>Live</source>
        <translation>현재</translation>
    </message>
    <message>
        <source>Roll</source>
        <translation>롤</translation>
    </message>
    <message>
        <source>Pitch</source>
        <translation>피치</translation>
    </message>
    <message>
        <source>Yaw</source>
        <translation>요</translation>
    </message>
    <message>
        <source>Quaternion</source>
        <translation>쿼터니언</translation>
    </message>
    <message>
        <source>Delta</source>
        <translation>기준 대비</translation>
    </message>
</context>
<context>
    <name>BandEditor</name>
    <message>
        <source>Name of the band</source>
        <translation>대역 이름</translation>
    </message>
    <message>
        <source>Lower edge</source>
        <translation>하한 주파수</translation>
    </message>
    <message>
        <source>Upper edge</source>
        <translation>상한 주파수</translation>
    </message>
    <message>
        <source>Measure this band</source>
        <translation>이 대역 측정</translation>
    </message>
</context>
<context>
    <name>BandPanel</name>
    <message>
        <source>Peak and bands</source>
        <translation>피크 및 대역</translation>
    </message>
    <message>
        <source>Back to the automatic bands</source>
        <translation>자동 대역으로 되돌리기</translation>
    </message>
    <message>
        <source>Add band…</source>
        <translation>대역 추가…</translation>
    </message>
    <message>
        <source>Measure the power of a band of your own</source>
        <translation>직접 지정한 대역의 파워 측정</translation>
    </message>
    <message>
        <source>Peak: %1 Hz on %2, %3 %4</source>
        <translation>피크: %1 Hz(%2), %3 %4</translation>
    </message>
    <message>
        <source>%1, %2–%3 Hz</source>
        <translation>%1, %2~%3 Hz</translation>
    </message>
    <message>
        <source>Coherence of the axes</source>
        <translation>축 간 코히런스</translation>
    </message>
    <message>
        <source>How alike the spectra of two axes are in shape, from 0 to 1</source>
        <translation>두 축의 스펙트럼 형태가 비슷한 정도(0~1)</translation>
    </message>
</context>
<context>
    <name>BodyModel</name>
    <message>
        <source>The model cannot be shown.</source>
        <translation>모델을 표시할 수 없습니다.</translation>
    </message>
</context>
<context>
    <name>CaptureActions</name>
    <message>
        <source>Stop &amp;capture</source>
        <translation>캡처 중지(&amp;C)</translation>
    </message>
    <message>
        <source>Start &amp;capture</source>
        <translation>캡처 시작(&amp;C)</translation>
    </message>
    <message>
        <source>Captures every byte, sample and event into one file</source>
        <translation>모든 바이트, 샘플, 이벤트를 하나의 파일에 캡처합니다</translation>
    </message>
    <message>
        <source>Capturing</source>
        <translation>캡처 중</translation>
    </message>
    <message>
        <source>Captured into %1</source>
        <translation>캡처 저장됨: %1</translation>
    </message>
</context>
<context>
    <name>CaptureBadge</name>
    <message>
        <source>Capture %1</source>
        <translation>캡처 중 %1</translation>
    </message>
    <message>
        <source>Capture: problem</source>
        <translation>캡처: 문제 발생</translation>
    </message>
</context>
<context>
    <name>CaptureFault</name>
    <message>
        <source>The capture %1 cannot be opened: %2</source>
        <translation>%1 캡처를 열 수 없습니다: %2</translation>
    </message>
    <message>
        <source>%1 is not a capture: it does not begin like an MCAP file.</source>
        <translation>%1 파일은 캡처가 아닙니다. 파일의 시작 부분이 MCAP 형식이 아닙니다.</translation>
    </message>
    <message>
        <source>Nothing in the capture %1 can be read: it is empty or damaged.</source>
        <translation>%1 캡처에서 읽을 수 있는 내용이 없습니다. 비어 있거나 손상되었습니다.</translation>
    </message>
    <message>
        <source>%1 holds no received bytes that could be played back. Another program may have written it.</source>
        <translation>%1 파일에 재생할 수 있는 수신 데이터가 없습니다. 다른 프로그램에서 만든 파일일 수 있습니다.</translation>
    </message>
    <message>
        <source>The capture %1 cannot be created: %2</source>
        <translation>%1 캡처를 만들 수 없습니다: %2</translation>
    </message>
    <message>
        <source>The capture %1 has ended: %2. What was written before is complete.</source>
        <translation>%1 캡처가 종료되었습니다: %2. 그 전까지의 내용은 온전하게 저장되어 있습니다.</translation>
    </message>
    <message>
        <source>The capture %1 has ended: the file was deleted or moved.</source>
        <translation>파일이 삭제되거나 이동되어 %1 캡처가 종료되었습니다.</translation>
    </message>
    <message>
        <source>The capture %1 is being written at this moment.</source>
        <translation>%1 캡처는 현재 쓰는 중입니다.</translation>
    </message>
    <message>
        <source>The capture %1 cannot be repaired: its folder is read-only. It has not been changed.</source>
        <translation>폴더가 읽기 전용이므로 %1 캡처를 복구할 수 없습니다. 파일은 변경되지 않았습니다.</translation>
    </message>
    <message>
        <source>The capture %1 cannot be repaired: %2. It has not been changed.</source>
        <translation>%1 캡처를 복구할 수 없습니다: %2. 파일은 변경되지 않았습니다.</translation>
    </message>
</context>
<context>
    <name>CaptureRun</name>
    <message>
        <source>the folder cannot be created</source>
        <translation>폴더를 만들 수 없습니다</translation>
    </message>
</context>
<context>
    <name>CeilingField</name>
    <message>
        <source>now %1</source>
        <translation>현재 %1</translation>
    </message>
</context>
<context>
    <name>ChartBarTools</name>
    <message>
        <source>Save charts</source>
        <translation>그래프 저장</translation>
    </message>
    <message>
        <source>List of markers; M sets one</source>
        <translation>마커 목록(M 키로 마커 설정)</translation>
    </message>
    <message>
        <source>Let each chart have its own time axis and cursors</source>
        <translation>그래프마다 시간 축과 커서를 따로 사용</translation>
    </message>
    <message>
        <source>Couple time axes and cursors of all charts</source>
        <translation>모든 그래프의 시간 축과 커서 연동</translation>
    </message>
</context>
<context>
    <name>ChartFilterRow</name>
    <message>
        <source>Low-pass filter</source>
        <translation>저역 통과 필터</translation>
    </message>
    <message>
        <source>Cutoff frequency</source>
        <translation>차단 주파수</translation>
    </message>
    <message>
        <source>In force: %1 Hz, as the rate is now %2 Hz</source>
        <translation>적용 중: %1 Hz(현재 속도가 %2 Hz이므로)</translation>
    </message>
    <message>
        <source>Apply %1 Hz</source>
        <translation>%1 Hz 적용</translation>
    </message>
</context>
<context>
    <name>ChartLegendEntry</name>
    <message>
        <source>Hide %1</source>
        <translation>%1 숨기기</translation>
    </message>
    <message>
        <source>Show %1</source>
        <translation>%1 표시</translation>
    </message>
</context>
<context>
    <name>ChartMeasures</name>
    <message>
        <source>Between A and B, %1 to %2</source>
        <translation>A/B 사이: %1 ~ %2</translation>
    </message>
    <message>
        <source>Over the view, %1 to %2</source>
        <translation>표시 범위: %1 ~ %2</translation>
    </message>
</context>
<context>
    <name>ChartRangeRow</name>
    <message>
        <source>Left end of the horizontal axis</source>
        <translation>가로축의 왼쪽 끝</translation>
    </message>
    <message>
        <source>Right end of the horizontal axis</source>
        <translation>가로축의 오른쪽 끝</translation>
    </message>
    <message>
        <source>Lower end of the value axis</source>
        <translation>값 축의 하한</translation>
    </message>
    <message>
        <source>Upper end of the value axis</source>
        <translation>값 축의 상한</translation>
    </message>
    <message>
        <source>Automatic values</source>
        <translation>값 축 자동 조정</translation>
    </message>
    <message>
        <source>Fit the value axis to what is visible</source>
        <translation>표시된 범위에 값 축 맞추기</translation>
    </message>
</context>
<context>
    <name>ChartSaver</name>
    <message>
        <source>Comma-separated values (*.csv)</source>
        <translation>CSV 파일 (*.csv)</translation>
    </message>
    <message>
        <source>The picture could not be taken.</source>
        <translation>이미지를 만들 수 없습니다.</translation>
    </message>
    <message>
        <source>Save a picture of the chart</source>
        <translation>그래프 이미지 저장</translation>
    </message>
    <message>
        <source>PNG picture (*.png)</source>
        <translation>PNG 이미지 (*.png)</translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation>저장됨: %1</translation>
    </message>
    <message>
        <source>%1 could not be written: %2</source>
        <translation>%1 파일에 쓸 수 없습니다: %2</translation>
    </message>
    <message>
        <source>Save the samples</source>
        <translation>샘플 저장</translation>
    </message>
    <message>
        <source>SVG picture (*.svg)</source>
        <translation>SVG 이미지 (*.svg)</translation>
    </message>
    <message>
        <source>Save the samples of all charts</source>
        <translation>모든 그래프의 샘플 저장</translation>
    </message>
    <message>
        <source>Save pictures of all charts</source>
        <translation>모든 그래프의 이미지 저장</translation>
    </message>
    <message>
        <source>No chart has samples.</source>
        <translation>샘플이 있는 그래프가 없습니다.</translation>
    </message>
    <message numerus="yes">
        <source>Saved %n file(s) in %1</source>
        <translation>
            <numerusform>파일 %n개 저장됨: %1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CommandSession</name>
    <message>
        <source>(no reply)</source>
        <translation>(응답 없음)</translation>
    </message>
    <message>
        <source>(noise)</source>
        <translation>(노이즈)</translation>
    </message>
</context>
<context>
    <name>ConnectionCard</name>
    <message>
        <source>Connection</source>
        <translation>연결</translation>
    </message>
    <message>
        <source>Opens this port at one rate after the other until the device answers</source>
        <translation>장치가 응답할 때까지 이 포트를 여러 보드 레이트로 차례로 엽니다</translation>
    </message>
    <message>
        <source>Try the &amp;usual baud rates</source>
        <translation>일반적인 보드 레이트 시도(&amp;U)</translation>
    </message>
    <message>
        <source>Only noise is arriving. The baud rate may be wrong.</source>
        <translation>노이즈만 수신되고 있습니다. 보드 레이트가 잘못되었을 수 있습니다.</translation>
    </message>
</context>
<context>
    <name>DashboardWindow</name>
    <message>
        <source>This window could not be loaded. See the log for the reason.</source>
        <translation>이 창을 불러올 수 없습니다. 원인은 로그를 확인하십시오.</translation>
    </message>
</context>
<context>
    <name>DeviceCard</name>
    <message>
        <source>Device</source>
        <translation>장치</translation>
    </message>
    <message>
        <source>Product</source>
        <translation>제품</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>모델</translation>
    </message>
    <message>
        <source>Build</source>
        <translation>빌드</translation>
    </message>
    <message>
        <source>UUID</source>
        <translation>UUID</translation>
    </message>
    <message>
        <source>&amp;Mounting</source>
        <translation>장착(&amp;M)</translation>
    </message>
    <message>
        <source>How the device is mounted; remembered for each product</source>
        <translation>장치의 장착 방향(제품별로 기억됨)</translation>
    </message>
    <message>
        <source>RFU / ENU (3-1-2)</source>
        <translation>RFU / ENU (3-1-2)</translation>
    </message>
    <message>
        <source>FLU / NWU (Z-Y-X)</source>
        <translation>FLU / NWU (Z-Y-X)</translation>
    </message>
</context>
<context>
    <name>Dialogs</name>
    <message>
        <source>Open Serial Port Error.</source>
        <translation>시리얼 포트를 열 수 없습니다.</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>연결</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>나중에</translation>
    </message>
    <message>
        <source>The device may be waiting in its bootloader for the rest. Plug it in, then connect to it.</source>
        <translation>장치가 부트로더에서 나머지 데이터를 기다리고 있을 수 있습니다. 장치의 케이블을 꽂은 다음 &apos;연결&apos;을 누르십시오.</translation>
    </message>
    <message>
        <source>Connection error.</source>
        <translation>연결 오류가 발생했습니다.</translation>
    </message>
</context>
<context>
    <name>FFTChartView</name>
    <message>
        <source>Waiting for samples</source>
        <translation>샘플을 기다리는 중</translation>
    </message>
    <message>
        <source>No spectrum yet</source>
        <translation>아직 스펙트럼 없음</translation>
    </message>
    <message>
        <source>Press Start above.</source>
        <translation>위의 &apos;시작&apos;을 누르십시오.</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>품질</translation>
    </message>
    <message>
        <source>The selected node is not sending any at the moment.</source>
        <translation>선택한 노드가 현재 샘플을 전송하지 않습니다.</translation>
    </message>
</context>
<context>
    <name>FftAlarm</name>
    <message>
        <source>Resultant</source>
        <translation>합성</translation>
    </message>
    <message>
        <source>%1 Hz on %2 (amp %3)</source>
        <translation>%1 Hz(%2, 진폭 %3)</translation>
    </message>
    <message>
        <source>Band %1 | Watch &gt;= %2 | Alarm &gt;= %3 | %4 frame(s)</source>
        <translation>대역 %1 | 주의 &gt;= %2 | 경보 &gt;= %3 | %4프레임</translation>
    </message>
    <message>
        <source>%1-%2 Hz</source>
        <translation>%1~%2 Hz</translation>
    </message>
    <message>
        <source>%1 Hz and above</source>
        <translation>%1 Hz 이상</translation>
    </message>
    <message>
        <source>All frequencies</source>
        <translation>전체 주파수</translation>
    </message>
    <message>
        <source>General</source>
        <translation>일반</translation>
    </message>
    <message>
        <source>Industrial</source>
        <translation>산업 기계</translation>
    </message>
    <message>
        <source>Human</source>
        <translation>인체 동작</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>정상</translation>
    </message>
    <message>
        <source>Watch</source>
        <translation>주의</translation>
    </message>
    <message>
        <source>Alarm</source>
        <translation>경보</translation>
    </message>
    <message>
        <source>Use cursor A/B to inspect the dominant peak.</source>
        <translation>커서 A/B로 주 피크를 확인하십시오.</translation>
    </message>
    <message>
        <source>Use cursor A/B to compare the dominant peak with nearby harmonics and band changes.</source>
        <translation>커서 A/B로 주 피크를 인접 고조파 및 대역 변화와 비교하십시오.</translation>
    </message>
    <message>
        <source>Low-frequency drift zone</source>
        <translation>저주파 드리프트 영역</translation>
    </message>
    <message>
        <source>Primary motion zone</source>
        <translation>주 운동 영역</translation>
    </message>
    <message>
        <source>Vibration zone</source>
        <translation>진동 영역</translation>
    </message>
    <message>
        <source>High-frequency impact zone</source>
        <translation>고주파 충격 영역</translation>
    </message>
    <message>
        <source>Structural / looseness zone</source>
        <translation>구조/풀림 영역</translation>
    </message>
    <message>
        <source>Check mounting bolts, frame looseness, and base stiffness.</source>
        <translation>고정 볼트, 프레임 풀림, 베이스 강성을 점검하십시오.</translation>
    </message>
    <message>
        <source>Rotating equipment zone</source>
        <translation>회전 기기 영역</translation>
    </message>
    <message>
        <source>Compare with shaft speed and inspect imbalance, misalignment, or coupling issues.</source>
        <translation>축 회전 속도와 비교하고 불평형, 축 정렬 불량, 커플링 이상을 점검하십시오.</translation>
    </message>
    <message>
        <source>Bearing / gear zone</source>
        <translation>베어링/기어 영역</translation>
    </message>
    <message>
        <source>Inspect bearings, gears, and resonance paths around the measured axis.</source>
        <translation>측정 축 주변의 베어링, 기어, 공진 경로를 점검하십시오.</translation>
    </message>
    <message>
        <source>Impact / resonance zone</source>
        <translation>충격/공진 영역</translation>
    </message>
    <message>
        <source>Check for repeated impacts, chatter, looseness, or hard contact.</source>
        <translation>반복 충격, 채터, 풀림, 강한 접촉이 있는지 점검하십시오.</translation>
    </message>
    <message>
        <source>Posture / sway zone</source>
        <translation>자세/흔들림 영역</translation>
    </message>
    <message>
        <source>Review posture, balance, and slow body sway over a longer window.</source>
        <translation>더 긴 구간에서 자세, 균형, 느린 신체 흔들림을 확인하십시오.</translation>
    </message>
    <message>
        <source>Gait / repetition zone</source>
        <translation>보행/반복 동작 영역</translation>
    </message>
    <message>
        <source>Compare cadence, stride rhythm, and left/right symmetry.</source>
        <translation>보행률, 보행 리듬, 좌우 대칭을 비교하십시오.</translation>
    </message>
    <message>
        <source>Tremor / shake zone</source>
        <translation>떨림 영역</translation>
    </message>
    <message>
        <source>Observe sustained tremor-like motion and compare different postures or limbs.</source>
        <translation>지속적인 떨림 동작을 관찰하고 다른 자세나 팔다리와 비교하십시오.</translation>
    </message>
    <message>
        <source>Impact / abrupt motion zone</source>
        <translation>충격/급격한 동작 영역</translation>
    </message>
    <message>
        <source>Mark abrupt movement, foot strike, or collision-like events and review the raw waveform.</source>
        <translation>급격한 움직임, 발 디딤, 충돌과 같은 이벤트를 표시하고 원시 파형을 확인하십시오.</translation>
    </message>
    <message>
        <source>General zone</source>
        <translation>일반 영역</translation>
    </message>
    <message>
        <source>No dominant FFT peak is available yet, so the alarm cannot classify the current motion or vibration.</source>
        <translation>아직 FFT 주 피크가 없어 현재의 움직임이나 진동을 분류할 수 없습니다.</translation>
    </message>
    <message>
        <source>Start or resume FFT updates and wait for a stable peak before acting on the alarm.</source>
        <translation>FFT 업데이트를 시작하거나 재개하고, 피크가 안정된 다음 경보에 대응하십시오.</translation>
    </message>
    <message>
        <source>%1 monitoring: waiting for data</source>
        <translation>%1 모니터링: 데이터 대기 중</translation>
    </message>
    <message>
        <source>%1 monitoring: no dominant peak yet.</source>
        <translation>%1 모니터링: 아직 주 피크가 없습니다.</translation>
    </message>
    <message>
        <source>%1 monitoring: %2 is below the watch level.</source>
        <translation>%1 모니터링: %2 피크가 주의 수준보다 낮습니다.</translation>
    </message>
    <message>
        <source>%1 watch: %2 is approaching the alarm threshold.</source>
        <translation>%1 주의: %2 피크가 경보 임계값에 접근하고 있습니다.</translation>
    </message>
    <message>
        <source>%1 alarm: %2 persisted above threshold.</source>
        <translation>%1 경보: %2 피크가 임계값을 계속 초과했습니다.</translation>
    </message>
    <message>
        <source>%1 monitoring: dominant peak outside target band</source>
        <translation>%1 모니터링: 주 피크가 대상 대역을 벗어남</translation>
    </message>
    <message>
        <source>%1 monitoring: %2 is outside the target band.</source>
        <translation>%1 모니터링: %2 피크가 대상 대역을 벗어났습니다.</translation>
    </message>
    <message>
        <source>The dominant peak %1 is outside the monitored band %2, so this preset stays idle.</source>
        <translation>%1의 주 피크가 감시 대역 %2 밖에 있으므로 이 프리셋은 대기 상태를 유지합니다.</translation>
    </message>
    <message>
        <source>If this frequency matters for your use case, switch presets or set a custom alarm rule.</source>
        <translation>이 주파수가 사용 목적에 중요하면 프리셋을 바꾸거나 사용자 지정 경보 규칙을 설정하십시오.</translation>
    </message>
    <message>
        <source>The dominant peak %1 is in the %2 and remains below the watch threshold.</source>
        <translation>%1의 주 피크가 %2에 있으며 주의 임계값보다 낮습니다.</translation>
    </message>
    <message>
        <source>The dominant peak %1 is in the %2 and is approaching the alarm threshold.</source>
        <translation>%1의 주 피크가 %2에 있으며 경보 임계값에 접근하고 있습니다.</translation>
    </message>
    <message>
        <source>The dominant peak %1 is in the %2 and stayed above the alarm threshold long enough to be treated as a persistent event.</source>
        <translation>%1의 주 피크가 %2에 있으며 경보 임계값을 충분히 오래 초과하여 지속적인 이벤트로 판정되었습니다.</translation>
    </message>
</context>
<context>
    <name>FftBand</name>
    <message>
        <source>Low</source>
        <translation>저역</translation>
    </message>
    <message>
        <source>Mid</source>
        <translation>중역</translation>
    </message>
    <message>
        <source>High</source>
        <translation>고역</translation>
    </message>
</context>
<context>
    <name>FftChartBridge</name>
    <message>
        <source>The band needs a name.</source>
        <translation>대역 이름을 입력하십시오.</translation>
    </message>
    <message>
        <source>The upper edge must be above the lower one.</source>
        <translation>대역의 상한은 하한보다 커야 합니다.</translation>
    </message>
    <message>
        <source>There are %1 bands already.</source>
        <translation>대역이 이미 %1개 있습니다.</translation>
    </message>
    <message>
        <source>Custom rule</source>
        <translation>사용자 지정 규칙</translation>
    </message>
    <message>
        <source>The upper frequency must be above the lower one, or 0 for no limit.</source>
        <translation>상한 주파수는 하한 주파수보다 크거나 0(제한 없음)이어야 합니다.</translation>
    </message>
    <message>
        <source>The alarm threshold must not be below the watch threshold, and both must be above 0.</source>
        <translation>경보 임계값은 주의 임계값 이상이어야 하며 둘 다 0보다 커야 합니다.</translation>
    </message>
    <message>
        <source>The frequencies are out of range.</source>
        <translation>주파수가 범위를 벗어났습니다.</translation>
    </message>
    <message>
        <source>Raised at %1 Hz, amplitude %2</source>
        <translation>%1 Hz에서 발생, 진폭 %2</translation>
    </message>
    <message>
        <source>Cleared</source>
        <translation>해제됨</translation>
    </message>
    <message>
        <source>up</source>
        <translation>상승</translation>
    </message>
    <message>
        <source>steady</source>
        <translation>안정</translation>
    </message>
    <message>
        <source>Coherence disabled</source>
        <translation>코히런스 사용 안 함</translation>
    </message>
    <message>
        <source>Latency %1ms avg / %2ms max | Dropped %3 | Clipping %4 | Confidence %5</source>
        <translation>지연 평균 %1ms / 최대 %2ms | 누락 %3 | 클리핑 %4 | 신뢰도 %5</translation>
    </message>
</context>
<context>
    <name>FftFiles</name>
    <message>
        <source>Save a snapshot</source>
        <translation>스냅샷 저장</translation>
    </message>
    <message>
        <source>Spectrum snapshot (*.json)</source>
        <translation>스펙트럼 스냅샷 (*.json)</translation>
    </message>
    <message>
        <source>Save the spectra</source>
        <translation>스펙트럼 저장</translation>
    </message>
    <message>
        <source>Comma-separated values (*.csv)</source>
        <translation>CSV 파일 (*.csv)</translation>
    </message>
    <message>
        <source>Open a snapshot</source>
        <translation>스냅샷 열기</translation>
    </message>
    <message>
        <source>%1 points, %2 Hz, window %3</source>
        <translation>%1포인트, %2 Hz, 창 함수 %3</translation>
    </message>
    <message>
        <source>Bands: %1</source>
        <translation>대역: %1</translation>
    </message>
    <message>
        <source>Coherence: %1</source>
        <translation>코히런스: %1</translation>
    </message>
    <message>
        <source>Alarm (%1): %2</source>
        <translation>경보(%1): %2</translation>
    </message>
    <message>
        <source>Settings: %1</source>
        <translation>설정: %1</translation>
    </message>
    <message>
        <source>the same as now</source>
        <translation>현재와 같음</translation>
    </message>
    <message>
        <source>other than now (%1)</source>
        <translation>현재와 다름(%1)</translation>
    </message>
    <message>
        <source>Format: %1</source>
        <translation>형식: %1</translation>
    </message>
    <message>
        <source>Snapshot</source>
        <translation>스냅샷</translation>
    </message>
    <message>
        <source>The file is no spectrum snapshot.</source>
        <translation>스펙트럼 스냅샷 파일이 아닙니다.</translation>
    </message>
    <message>
        <source>The file could not be read: %1</source>
        <translation>파일을 읽을 수 없습니다: %1</translation>
    </message>
</context>
<context>
    <name>FftWindow</name>
    <message>
        <source>Rectangular</source>
        <translation>직사각형</translation>
    </message>
    <message>
        <source>Hann</source>
        <translation>해닝(Hann)</translation>
    </message>
    <message>
        <source>Hamming</source>
        <translation>해밍</translation>
    </message>
    <message>
        <source>Blackman</source>
        <translation>블랙먼</translation>
    </message>
    <message>
        <source>Flat Top</source>
        <translation>플랫톱</translation>
    </message>
</context>
<context>
    <name>FileOpening</name>
    <message>
        <source>Open a capture or a recording</source>
        <translation>캡처 또는 기록 열기</translation>
    </message>
    <message>
        <source>Captures and recordings (*.mcap *.csv)</source>
        <translation>캡처 및 기록 (*.mcap *.csv)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>모든 파일 (*)</translation>
    </message>
</context>
<context>
    <name>GatewayDashboard</name>
    <message>
        <source>Pause</source>
        <translation>일시 정지</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>재개</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>스페이스바</translation>
    </message>
    <message>
        <source>Hide these charts</source>
        <translation>이 종류의 그래프 숨기기</translation>
    </message>
    <message>
        <source>Show these charts of the chosen nodes</source>
        <translation>선택한 노드에 대해 이 종류의 그래프 표시</translation>
    </message>
    <message>
        <source>%1 · %2 Hz</source>
        <translation>%1 · %2 Hz</translation>
    </message>
    <message>
        <source>No chart is chosen</source>
        <translation>선택된 그래프 없음</translation>
    </message>
    <message>
        <source>No node is chosen</source>
        <translation>선택된 노드 없음</translation>
    </message>
    <message>
        <source>Choose above what to show.</source>
        <translation>표시할 항목을 위에서 선택하십시오.</translation>
    </message>
    <message>
        <source>Click a node in the table to see its waveforms. Up to %1 nodes are shown together.</source>
        <translation>표에서 노드를 클릭하면 해당 파형이 표시됩니다. 최대 %1개 노드를 함께 표시할 수 있습니다.</translation>
    </message>
    <message>
        <source>Waiting for samples</source>
        <translation>샘플을 기다리는 중</translation>
    </message>
    <message>
        <source>Connect a wireless gateway; its nodes appear here.</source>
        <translation>무선 게이트웨이를 연결하면 해당 노드가 여기에 표시됩니다.</translation>
    </message>
    <message>
        <source>Freeze the charts; the table keeps updating</source>
        <translation>그래프 일시 정지(표는 계속 갱신됨)</translation>
    </message>
    <message>
        <source>Continue with the newest samples</source>
        <translation>최신 샘플부터 다시 표시</translation>
    </message>
    <message>
        <source>Overlay</source>
        <translation>겹쳐 보기</translation>
    </message>
    <message>
        <source>Show each node in a chart of its own</source>
        <translation>노드마다 별도의 그래프로 표시</translation>
    </message>
    <message>
        <source>Show one quantity of all chosen nodes in one plot</source>
        <translation>선택한 모든 노드의 같은 종류의 값을 하나의 그래프에 겹쳐 표시</translation>
    </message>
</context>
<context>
    <name>GatewayDashboardBridge</name>
    <message>
        <source>Wireless Gateway Dashboard</source>
        <translation>무선 게이트웨이 대시보드</translation>
    </message>
    <message>
        <source>Nodes %1 · late %2 · gone %3</source>
        <translation>노드 %1 · 지연 %2 · 끊김 %3</translation>
    </message>
    <message>
        <source>Node %1</source>
        <translation>노드 %1</translation>
    </message>
    <message>
        <source>Nodes %1 · connection ended</source>
        <translation>노드 %1 · 연결 종료</translation>
    </message>
</context>
<context>
    <name>GatewayNodeModel</name>
    <message>
        <source>Live</source>
        <translation>수신 중</translation>
    </message>
    <message>
        <source>Late</source>
        <translation>지연</translation>
    </message>
    <message>
        <source>Gone</source>
        <translation>끊김</translation>
    </message>
    <message>
        <source>%1 ms</source>
        <translation>%1 ms</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1분</translation>
    </message>
    <message>
        <source>Ended</source>
        <translation>종료</translation>
    </message>
</context>
<context>
    <name>GatewayNodeTable</name>
    <message>
        <source>Node</source>
        <translation>노드</translation>
    </message>
    <message>
        <source>State</source>
        <translation>상태</translation>
    </message>
    <message>
        <source>Rate
Hz</source>
        <translation>속도
Hz</translation>
    </message>
    <message>
        <source>Newest
ago</source>
        <translation>수신 후
경과</translation>
    </message>
    <message>
        <source>Missing
samples</source>
        <translation>누락
샘플</translation>
    </message>
    <message>
        <source>Temp.
°C</source>
        <translation>온도
°C</translation>
    </message>
    <message>
        <source>Pressure
Pa</source>
        <translation>기압
Pa</translation>
    </message>
    <message>
        <source>Node %1, %2</source>
        <translation>노드 %1, %2</translation>
    </message>
    <message>
        <source>%1 of %2 nodes chosen for charts</source>
        <translation>그래프에 표시할 노드: %1 / %2</translation>
    </message>
    <message>
        <source>Move the node and its charts up</source>
        <translation>노드와 해당 그래프를 위로 이동</translation>
    </message>
    <message>
        <source>Alt+Up</source>
        <translation>Alt+↑</translation>
    </message>
    <message>
        <source>Move the node and its charts down</source>
        <translation>노드와 해당 그래프를 아래로 이동</translation>
    </message>
    <message>
        <source>Alt+Down</source>
        <translation>Alt+↓</translation>
    </message>
    <message>
        <source>%1 nodes are already shown. Remove one first.</source>
        <translation>이미 %1개 노드가 표시되어 있습니다. 먼저 하나를 선택 해제하십시오.</translation>
    </message>
</context>
<context>
    <name>KvUartPort</name>
    <message>
        <source>This program cannot open files.</source>
        <translation>이 프로그램에서는 파일을 열 수 없습니다.</translation>
    </message>
</context>
<context>
    <name>LanguageMenu</name>
    <message>
        <source>The translation for %1 cannot be loaded. The language stays as it is.</source>
        <translation>번역을 불러올 수 없습니다: %1. 표시 언어는 변경되지 않습니다.</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>언어</translation>
    </message>
    <message>
        <source>Language of the interface</source>
        <translation>표시 언어</translation>
    </message>
</context>
<context>
    <name>MainActions</name>
    <message>
        <source>Sensor Dashboard</source>
        <translation>센서 대시보드</translation>
    </message>
    <message>
        <source>Waveforms of the selected node</source>
        <translation>선택한 노드의 파형을 표시합니다</translation>
    </message>
    <message>
        <source>Wireless Gateway Dashboard</source>
        <translation>무선 게이트웨이 대시보드</translation>
    </message>
    <message>
        <source>All radio nodes of a connected wireless gateway</source>
        <translation>연결된 무선 게이트웨이의 모든 무선 노드를 표시합니다</translation>
    </message>
    <message>
        <source>Spectrum of the selected node, with alarms</source>
        <translation>선택한 노드의 스펙트럼과 경보를 표시합니다</translation>
    </message>
    <message>
        <source>Attitude of the selected node in three dimensions</source>
        <translation>선택한 노드의 자세를 3D로 표시합니다</translation>
    </message>
    <message>
        <source>Record the stream to CSV files (%1)</source>
        <translation>수신 데이터를 CSV 파일로 기록합니다 (%1)</translation>
    </message>
    <message>
        <source>How completely the data arrive: errors, gaps, losses (%1)</source>
        <translation>데이터 수신 상태(오류, 끊김, 누락)를 표시합니다 (%1)</translation>
    </message>
    <message>
        <source>Load new firmware into the device</source>
        <translation>장치에 새 펌웨어를 다운로드합니다</translation>
    </message>
    <message>
        <source>Choose a serial port and connect (%1)</source>
        <translation>시리얼 포트를 선택하여 연결합니다 (%1)</translation>
    </message>
    <message>
        <source>Close the serial port (%1)</source>
        <translation>시리얼 포트를 닫습니다 (%1)</translation>
    </message>
    <message>
        <source>End the program</source>
        <translation>프로그램을 종료합니다</translation>
    </message>
    <message>
        <source>Waves</source>
        <translation>파형</translation>
    </message>
    <message>
        <source>Gateway</source>
        <translation>게이트웨이</translation>
    </message>
    <message>
        <source>Plug in a module or a gateway, press &lt;b&gt;Open port&lt;/b&gt; (%1) and choose its serial port.</source>
        <translation>모듈 또는 게이트웨이를 연결하고 &lt;b&gt;포트 열기&lt;/b&gt;(%1)를 누른 다음 해당 시리얼 포트를 선택하십시오.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be written: settings and logs of this run are not kept.</source>
        <translation>%1 폴더에 쓸 수 없어 이번 실행의 설정과 로그가 저장되지 않습니다.</translation>
    </message>
    <message>
        <source>&amp;Close file</source>
        <translation>파일 닫기(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Close port</source>
        <translation>포트 닫기(&amp;C)</translation>
    </message>
    <message>
        <source>Play back a capture or a CSV recording (%1)</source>
        <translation>캡처 또는 CSV 기록 재생 (%1)</translation>
    </message>
</context>
<context>
    <name>MarkerList</name>
    <message>
        <source>Marker %1</source>
        <translation>마커 %1</translation>
    </message>
</context>
<context>
    <name>MarkerPanel</name>
    <message>
        <source>Markers</source>
        <translation>마커</translation>
    </message>
    <message>
        <source>No markers</source>
        <translation>마커 없음</translation>
    </message>
    <message>
        <source>M sets one at the pointer, or at the newest sample.</source>
        <translation>M 키를 누르면 마우스 포인터 위치 또는 최신 샘플에 마커를 설정합니다.</translation>
    </message>
    <message>
        <source>Show this place</source>
        <translation>이 위치 표시</translation>
    </message>
    <message>
        <source>Text of the marker</source>
        <translation>마커의 텍스트</translation>
    </message>
    <message>
        <source>Remove this marker</source>
        <translation>이 마커 삭제</translation>
    </message>
</context>
<context>
    <name>MeasurePanel</name>
    <message>
        <source>Copy</source>
        <translation>복사</translation>
    </message>
    <message>
        <source>Copy the table for a spreadsheet</source>
        <translation>스프레드시트용으로 표 복사</translation>
    </message>
</context>
<context>
    <name>MeasureTable</name>
    <message>
        <source>Minimum</source>
        <translation>최소</translation>
    </message>
    <message>
        <source>Maximum</source>
        <translation>최대</translation>
    </message>
    <message>
        <source>Mean</source>
        <translation>평균</translation>
    </message>
    <message>
        <source>Std. dev.</source>
        <translation>표준 편차</translation>
    </message>
    <message>
        <source>RMS</source>
        <translation>RMS</translation>
    </message>
    <message>
        <source>Peak-peak</source>
        <translation>피크-피크</translation>
    </message>
    <message>
        <source>Count</source>
        <translation>개수</translation>
    </message>
</context>
<context>
    <name>MeshFile</name>
    <message>
        <source>The mesh file cannot be read: %1</source>
        <translation>메시 파일을 읽을 수 없습니다: %1</translation>
    </message>
    <message>
        <source>The mesh file is larger than %1 MiB.</source>
        <translation>메시 파일이 %1 MiB보다 큽니다.</translation>
    </message>
    <message>
        <source>The mesh file is damaged, or of an unsupported kind.</source>
        <translation>메시 파일이 손상되었거나 지원되지 않는 형식입니다.</translation>
    </message>
</context>
<context>
    <name>MessageRow</name>
    <message>
        <source>Dismiss</source>
        <translation>닫기</translation>
    </message>
</context>
<context>
    <name>NodeCard</name>
    <message>
        <source>Nodes</source>
        <translation>노드</translation>
    </message>
    <message>
        <source>The node whose values are shown</source>
        <translation>값을 표시할 노드</translation>
    </message>
    <message>
        <source>Node ID:%1</source>
        <translation>노드 ID:%1</translation>
    </message>
</context>
<context>
    <name>NodeOverlay</name>
    <message>
        <source>Node %1</source>
        <translation>노드 %1</translation>
    </message>
</context>
<context>
    <name>ObjReader</name>
    <message>
        <source>The OBJ file cannot be read: %1</source>
        <translation>OBJ 파일을 읽을 수 없습니다: %1</translation>
    </message>
    <message>
        <source>The OBJ file is larger than %1 MiB.</source>
        <translation>OBJ 파일이 %1 MiB보다 큽니다.</translation>
    </message>
    <message>
        <source>The file is not an OBJ model: it holds no text.</source>
        <translation>텍스트 파일이 아니므로 OBJ 모델이 아닙니다.</translation>
    </message>
    <message>
        <source>The file is not an OBJ model.</source>
        <translation>OBJ 모델 파일이 아닙니다.</translation>
    </message>
    <message>
        <source>The OBJ model has more than %1 triangles.</source>
        <translation>OBJ 모델의 삼각형이 %1개를 초과합니다.</translation>
    </message>
    <message>
        <source>The OBJ file is damaged: a face names a vertex that does not exist.</source>
        <translation>OBJ 파일이 손상되었습니다. 존재하지 않는 정점을 참조하는 면이 있습니다.</translation>
    </message>
    <message>
        <source>The OBJ model has coordinates that are not finite or too large.</source>
        <translation>OBJ 모델에 유한하지 않거나 너무 큰 좌표가 있습니다.</translation>
    </message>
    <message>
        <source>The OBJ file holds no faces to show.</source>
        <translation>OBJ 파일에 표시할 면이 없습니다.</translation>
    </message>
    <message>
        <source>Line %1 of the OBJ file contains a coordinate that is not a number.</source>
        <translation>OBJ 파일의 %1번째 줄에 숫자가 아닌 좌표가 있습니다.</translation>
    </message>
</context>
<context>
    <name>OverlayChart</name>
    <message>
        <source>Show %1 of all chosen nodes</source>
        <translation>선택한 모든 노드의 %1 표시</translation>
    </message>
</context>
<context>
    <name>PictureChips</name>
    <message>
        <source>%1x</source>
        <translation>%1배</translation>
    </message>
    <message>
        <source>PNG at %1 times the size</source>
        <translation>%1배 크기의 PNG</translation>
    </message>
</context>
<context>
    <name>PlaybackBar</name>
    <message>
        <source>Unthrottled</source>
        <translation>속도 제한 없음</translation>
    </message>
    <message>
        <source>Reconstructed from a CSV recording: fields that it does not hold are 0, and times are spread over each second.</source>
        <translation>CSV 기록에서 재구성했습니다. 기록에 없는 항목은 0이며 시간은 매초 안에 고르게 분배됩니다.</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>일시 정지</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>재개</translation>
    </message>
    <message>
        <source>At the end</source>
        <translation>끝에 있음</translation>
    </message>
    <message>
        <source>reached: %1</source>
        <translation>실제: %1</translation>
    </message>
    <message>
        <source>%1. This computer cannot keep up; nothing is left out.</source>
        <translation>%1. 이 컴퓨터가 따라가지 못합니다. 빠지는 데이터는 없습니다.</translation>
    </message>
    <message>
        <source>Play the whole file</source>
        <translation>파일 전체 재생</translation>
    </message>
    <message>
        <source>Play from</source>
        <translation>재생 시작 위치</translation>
    </message>
    <message>
        <source>Play to</source>
        <translation>재생 끝 위치</translation>
    </message>
    <message>
        <source>The end</source>
        <translation>끝</translation>
    </message>
    <message>
        <source>The start</source>
        <translation>처음</translation>
    </message>
    <message>
        <source>Here (%1)</source>
        <translation>현재 위치 (%1)</translation>
    </message>
    <message>
        <source>Playback</source>
        <translation>재생</translation>
    </message>
    <message>
        <source>Play or pause (Space)</source>
        <translation>재생 또는 일시 정지 (스페이스)</translation>
    </message>
    <message>
        <source>Step</source>
        <translation>한 단계</translation>
    </message>
    <message>
        <source>Play one packet</source>
        <translation>패킷 하나 재생</translation>
    </message>
    <message>
        <source>How fast the file is played</source>
        <translation>파일 재생 속도</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>기록 속도</translation>
    </message>
    <message>
        <source>Position in the file</source>
        <translation>파일 내 위치</translation>
    </message>
    <message>
        <source>Position and length</source>
        <translation>위치와 길이</translation>
    </message>
    <message>
        <source>Loop</source>
        <translation>반복</translation>
    </message>
    <message>
        <source>Play again from the start when the end is reached</source>
        <translation>끝에 도달하면 처음부터 다시 재생</translation>
    </message>
    <message>
        <source>Skip gaps</source>
        <translation>공백 건너뛰기</translation>
    </message>
    <message>
        <source>Skip times without data of more than 2 s</source>
        <translation>데이터 없는 시간이 2초를 넘으면 건너뛰기</translation>
    </message>
    <message>
        <source>Part...</source>
        <translation>구간...</translation>
    </message>
    <message>
        <source>Play from marker to marker</source>
        <translation>마커 사이 재생</translation>
    </message>
    <message>
        <source>Rate that is reached</source>
        <translation>실제 속도</translation>
    </message>
</context>
<context>
    <name>Qt6ModelAsset</name>
    <message>
        <source>No 3D asset was selected.</source>
        <translation>선택된 3D 모델이 없습니다.</translation>
    </message>
    <message>
        <source>The selected mesh file could not be found.</source>
        <translation>선택한 메시 파일을 찾을 수 없습니다.</translation>
    </message>
    <message>
        <source>The selected OBJ file could not be found.</source>
        <translation>선택한 OBJ 파일을 찾을 수 없습니다.</translation>
    </message>
    <message>
        <source>Unsupported 3D asset. Choose a bundled .obj model, an external .obj file, or a preconverted .mesh file.</source>
        <translation>지원되지 않는 3D 모델입니다. 기본 제공 .obj 모델, 외부 .obj 파일 또는 미리 변환된 .mesh 파일을 선택하십시오.</translation>
    </message>
</context>
<context>
    <name>Recorder</name>
    <message>
        <source>The connection was lost for %1 s.</source>
        <translation>%1초 동안 연결이 끊어졌습니다.</translation>
    </message>
</context>
<context>
    <name>RecordingActions</name>
    <message>
        <source>Marker %1 at %2 s</source>
        <translation>마커 %1: %2 s</translation>
    </message>
    <message>
        <source>Marker %1</source>
        <translation>마커 %1</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>기록</translation>
    </message>
    <message>
        <source>Recording stopped: %1 records</source>
        <translation>기록 중지됨: %1건</translation>
    </message>
    <message>
        <source>&amp;Stop recording</source>
        <translation>기록 중지(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Start recording</source>
        <translation>기록 시작(&amp;S)</translation>
    </message>
    <message>
        <source>Writes what has arrived and closes the file</source>
        <translation>수신한 데이터를 쓰고 파일을 닫습니다</translation>
    </message>
    <message>
        <source>Records with the last folder and name</source>
        <translation>마지막으로 사용한 폴더와 이름으로 기록합니다</translation>
    </message>
    <message>
        <source>Marker</source>
        <translation>마커</translation>
    </message>
    <message>
        <source>Marker at %1 s</source>
        <translation>마커: %1 s</translation>
    </message>
    <message>
        <source>Markers go into recordings and captures: start one first</source>
        <translation>마커는 기록과 캡처에 저장됩니다. 먼저 둘 중 하나를 시작하십시오</translation>
    </message>
</context>
<context>
    <name>RecordingBadge</name>
    <message>
        <source>Recording %1</source>
        <translation>기록 중 %1</translation>
    </message>
    <message>
        <source>Recording: waiting</source>
        <translation>기록: 대기 중</translation>
    </message>
    <message>
        <source>Recording: problem</source>
        <translation>기록: 문제 발생</translation>
    </message>
</context>
<context>
    <name>RecordingReader</name>
    <message>
        <source>The recording %1 cannot be opened: %2</source>
        <translation>%1 기록을 열 수 없습니다: %2</translation>
    </message>
    <message>
        <source>The recording %1 is empty.</source>
        <translation>%1 기록이 비어 있습니다.</translation>
    </message>
    <message>
        <source>%1 is not a recording of this program: its columns are different.</source>
        <translation>%1 파일은 이 프로그램의 기록이 아닙니다. 열 구성이 다릅니다.</translation>
    </message>
    <message>
        <source>The recording %1 holds no records.</source>
        <translation>%1 기록에 레코드가 없습니다.</translation>
    </message>
</context>
<context>
    <name>SavePanel</name>
    <message>
        <source>Samples</source>
        <translation>샘플</translation>
    </message>
    <message>
        <source>Visible</source>
        <translation>표시 범위</translation>
    </message>
    <message>
        <source>All</source>
        <translation>전체</translation>
    </message>
    <message>
        <source>Save tables…</source>
        <translation>표 저장…</translation>
    </message>
    <message>
        <source>A CSV file of each chart</source>
        <translation>그래프마다 CSV 파일 저장</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>이미지</translation>
    </message>
    <message>
        <source>Save pictures…</source>
        <translation>이미지 저장…</translation>
    </message>
    <message>
        <source>A picture of each chart</source>
        <translation>그래프마다 이미지 저장</translation>
    </message>
    <message>
        <source>The buttons of each chart save only that chart, in the same way.</source>
        <translation>각 그래프의 버튼은 해당 그래프만 같은 설정으로 저장합니다.</translation>
    </message>
</context>
<context>
    <name>SceneMarks</name>
    <message>
        <source>N</source>
        <comment>north</comment>
        <translation>북</translation>
    </message>
    <message>
        <source>E</source>
        <comment>east</comment>
        <translation>동</translation>
    </message>
    <message>
        <source>S</source>
        <comment>south</comment>
        <translation>남</translation>
    </message>
    <message>
        <source>W</source>
        <comment>west</comment>
        <translation>서</translation>
    </message>
</context>
<context>
    <name>SensorDashboard</name>
    <message>
        <source>Pause</source>
        <translation>일시 정지</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>재개</translation>
    </message>
    <message>
        <source>Hold the picture; recordings go on</source>
        <translation>화면 일시 정지(기록은 계속됨)</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>스페이스바</translation>
    </message>
    <message>
        <source>Hide this chart</source>
        <translation>이 그래프 숨기기</translation>
    </message>
    <message>
        <source>Show this chart</source>
        <translation>이 그래프 표시</translation>
    </message>
    <message>
        <source>No chart is chosen</source>
        <translation>선택된 그래프 없음</translation>
    </message>
    <message>
        <source>Choose above what to show.</source>
        <translation>표시할 항목을 위에서 선택하십시오.</translation>
    </message>
    <message>
        <source>Continue with the newest samples</source>
        <translation>최신 샘플부터 다시 표시</translation>
    </message>
</context>
<context>
    <name>SensorDashboardBridge</name>
    <message>
        <source>Acceleration</source>
        <translation>가속도</translation>
    </message>
    <message>
        <source>Angular Velocity</source>
        <translation>각속도</translation>
    </message>
    <message>
        <source>Magnetic Field</source>
        <translation>자기장</translation>
    </message>
    <message>
        <source>Euler Angles</source>
        <translation>오일러 각</translation>
    </message>
    <message>
        <source>Quaternion</source>
        <translation>쿼터니언</translation>
    </message>
    <message>
        <source>Pressure</source>
        <translation>기압</translation>
    </message>
    <message>
        <source>Sensor Dashboard</source>
        <translation>센서 대시보드</translation>
    </message>
</context>
<context>
    <name>SensorDataPanel</name>
    <message>
        <source>Acceleration</source>
        <translation>가속도</translation>
    </message>
    <message>
        <source>Angular velocity</source>
        <translation>각속도</translation>
    </message>
    <message>
        <source>Magnetic field</source>
        <translation>자기장</translation>
    </message>
    <message>
        <source>Quaternion</source>
        <translation>쿼터니언</translation>
    </message>
    <message>
        <source>Node</source>
        <translation>노드</translation>
    </message>
    <message>
        <source>Device time</source>
        <translation>장치 시간</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>온도</translation>
    </message>
    <message>
        <source>Pressure</source>
        <translation>기압</translation>
    </message>
</context>
<context>
    <name>SessionCapture</name>
    <message>
        <source>The disk is too slow. Not captured: %1 chunks or samples.</source>
        <translation>디스크 쓰기 속도가 너무 느립니다. 캡처되지 않은 청크 또는 샘플 수: %1</translation>
    </message>
</context>
<context>
    <name>SpectrumChart</name>
    <message>
        <source>%1 points · %2 Hz · %3 · %4 Hz per bin</source>
        <translation>%1포인트 · %2 Hz · %3 · Δf %4 Hz</translation>
    </message>
    <message>
        <source>dB</source>
        <translation>dB</translation>
    </message>
    <message>
        <source>Show amplitudes as they are</source>
        <translation>진폭을 선형으로 표시</translation>
    </message>
    <message>
        <source>Show amplitudes in decibels</source>
        <translation>진폭을 데시벨로 표시</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>맞춤</translation>
    </message>
    <message>
        <source>Show amplitudes up to the set maximum</source>
        <translation>설정한 최댓값까지 진폭 표시</translation>
    </message>
    <message>
        <source>Fit the amplitude axis to the curves beyond 0 Hz</source>
        <translation>0 Hz를 제외한 곡선에 진폭 축 맞추기</translation>
    </message>
    <message>
        <source>Remove the cursors A and B</source>
        <translation>커서 A/B 지우기</translation>
    </message>
    <message>
        <source>Measure between the cursors A and B</source>
        <translation>커서 A/B 사이 측정</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>A, B</source>
        <translation>A, B</translation>
    </message>
    <message>
        <source>Reset the view</source>
        <translation>보기 초기화</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Home</translation>
    </message>
    <message>
        <source>Save a picture of the chart</source>
        <translation>그래프 이미지 저장</translation>
    </message>
    <message>
        <source>Save the spectra as a table</source>
        <translation>스펙트럼을 표로 저장</translation>
    </message>
    <message>
        <source>Save a snapshot of spectra and analysis</source>
        <translation>스펙트럼 및 분석 스냅샷 저장</translation>
    </message>
    <message>
        <source>Open…</source>
        <translation>열기…</translation>
    </message>
    <message>
        <source>Level (dB, 0 dB = 1 %1)</source>
        <translation>레벨 (dB, 0 dB = 1 %1)</translation>
    </message>
    <message>
        <source>Block %1 %</source>
        <translation>블록 %1 %</translation>
    </message>
    <message>
        <source>Statistics</source>
        <translation>통계</translation>
    </message>
    <message>
        <source>Limits of the axes, size of pictures</source>
        <translation>축 범위, 이미지 크기</translation>
    </message>
    <message>
        <source>Show the contents of a saved snapshot</source>
        <translation>저장된 스냅샷의 내용 보기</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>이미지</translation>
    </message>
</context>
<context>
    <name>SpectrumViewState</name>
    <message>
        <source>%1 Hz</source>
        <translation>%1 Hz</translation>
    </message>
</context>
<context>
    <name>StatusLine</name>
    <message>
        <source>Connecting...</source>
        <translation>연결 중...</translation>
    </message>
    <message>
        <source>Connected... %1, %2 baud</source>
        <translation>연결됨... %1, %2 baud</translation>
    </message>
    <message>
        <source>Node ID:%1</source>
        <translation>노드 ID:%1</translation>
    </message>
    <message>
        <source>Unconnected...</source>
        <translation>연결 안 됨...</translation>
    </message>
    <message>
        <source>Playing back %1</source>
        <translation>%1 재생 중</translation>
    </message>
</context>
<context>
    <name>ThreeDScene</name>
    <message>
        <source>Drag to turn, right-drag to move, wheel to zoom, double-click to reset</source>
        <translation>끌기: 회전, 오른쪽 끌기: 이동, 휠: 확대/축소, 두 번 클릭: 초기화</translation>
    </message>
</context>
<context>
    <name>TimeChart</name>
    <message>
        <source>Waiting for samples</source>
        <translation>샘플을 기다리는 중</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>일시 정지됨</translation>
    </message>
    <message>
        <source>Live</source>
        <translation>현재</translation>
    </message>
    <message>
        <source>Back to the newest samples</source>
        <translation>최신 샘플로 돌아가기</translation>
    </message>
    <message>
        <source>End</source>
        <translation>End</translation>
    </message>
    <message>
        <source>Span and limits of the axes</source>
        <translation>시간 폭과 축 범위</translation>
    </message>
    <message>
        <source>Statistics</source>
        <translation>통계</translation>
    </message>
    <message>
        <source>Remove the measuring cursors</source>
        <translation>측정 커서 지우기</translation>
    </message>
    <message>
        <source>Measure between two cursors</source>
        <translation>두 커서 사이 측정</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>A, B</source>
        <translation>A, B</translation>
    </message>
    <message>
        <source>Reset the view</source>
        <translation>보기 초기화</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Home</translation>
    </message>
    <message>
        <source>Save a picture of the chart</source>
        <translation>그래프 이미지 저장</translation>
    </message>
    <message>
        <source>Save the visible samples</source>
        <translation>표시된 샘플 저장</translation>
    </message>
    <message>
        <source>Show all charts</source>
        <translation>모든 그래프 표시</translation>
    </message>
    <message>
        <source>Show this chart alone</source>
        <translation>이 그래프만 표시</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>Show %1 seconds</source>
        <translation>%1초 표시</translation>
    </message>
    <message>
        <source>No new samples</source>
        <translation>새 샘플 없음</translation>
    </message>
</context>
<context>
    <name>TimeViewState</name>
    <message>
        <source>t %1</source>
        <translation>t %1</translation>
    </message>
</context>
<context>
    <name>ToolADI</name>
    <message>
        <source>N</source>
        <comment>north</comment>
        <translation>북</translation>
    </message>
    <message>
        <source>E</source>
        <comment>east</comment>
        <translation>동</translation>
    </message>
    <message>
        <source>S</source>
        <comment>south</comment>
        <translation>남</translation>
    </message>
    <message>
        <source>W</source>
        <comment>west</comment>
        <translation>서</translation>
    </message>
    <message>
        <source>Attitude indicator</source>
        <translation>자세 지시계</translation>
    </message>
    <message>
        <source>No attitude</source>
        <translation>자세 데이터 없음</translation>
    </message>
</context>
<context>
    <name>TriggerRow</name>
    <message>
        <source>Trigger</source>
        <translation>트리거</translation>
    </message>
    <message>
        <source>Watch %1</source>
        <translation>%1 감시</translation>
    </message>
    <message>
        <source>Rising through the level</source>
        <translation>상승하며 레벨 통과</translation>
    </message>
    <message>
        <source>Falling through the level</source>
        <translation>하강하며 레벨 통과</translation>
    </message>
    <message>
        <source>Crossing the level either way</source>
        <translation>방향에 관계없이 레벨 통과</translation>
    </message>
    <message>
        <source>Band</source>
        <translation>범위</translation>
    </message>
    <message>
        <source>Leaving the band between two levels</source>
        <translation>두 레벨 사이의 범위를 벗어남</translation>
    </message>
    <message>
        <source>Other end of the band</source>
        <translation>범위의 다른 쪽 끝</translation>
    </message>
    <message>
        <source>Share of the picture before the event</source>
        <translation>표시 범위 중 이벤트 이전의 비율</translation>
    </message>
    <message>
        <source>Auto</source>
        <translation>자동</translation>
    </message>
    <message>
        <source>Run live while nothing happens</source>
        <translation>이벤트가 없는 동안 실시간 표시</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>일반</translation>
    </message>
    <message>
        <source>Hold each event until the next</source>
        <translation>다음 이벤트까지 각 이벤트를 홀드</translation>
    </message>
    <message>
        <source>Single</source>
        <translation>단일</translation>
    </message>
    <message>
        <source>Hold the first event</source>
        <translation>첫 이벤트를 홀드</translation>
    </message>
    <message>
        <source>Set a marker</source>
        <translation>마커 설정</translation>
    </message>
    <message>
        <source>Mark each event that was caught</source>
        <translation>포착한 각 이벤트에 마커 설정</translation>
    </message>
    <message>
        <source>Release</source>
        <translation>해제</translation>
    </message>
    <message>
        <source>Back to the live samples; wait for the next event</source>
        <translation>최신 샘플로 돌아가 다음 이벤트 대기</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>기록</translation>
    </message>
    <message>
        <source>Start a recording with the event, with the last folder and name</source>
        <translation>이벤트 발생 시 마지막으로 사용한 폴더와 이름으로 기록 시작</translation>
    </message>
    <message>
        <source>Trigger level; drag its line to change it</source>
        <translation>트리거 레벨(선을 끌어서 변경 가능)</translation>
    </message>
</context>
<context>
    <name>UpdateNoteCard</name>
    <message>
        <source>The device runs its bootloader and sends no data: restart it, or choose a firmware.</source>
        <translation>장치가 부트로더를 실행 중이며 데이터를 보내지 않습니다. 장치를 다시 시작하거나 펌웨어를 선택하십시오.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>계속</translation>
    </message>
    <message>
        <source>Choose firmware</source>
        <translation>펌웨어 선택</translation>
    </message>
    <message>
        <source>Forget</source>
        <translation>알림 지우기</translation>
    </message>
    <message>
        <source>The device is waiting in its bootloader.</source>
        <translation>장치가 부트로더에서 대기하고 있습니다.</translation>
    </message>
    <message>
        <source>Chooses the same file, connects and downloads it</source>
        <translation>같은 파일을 선택하고 연결하여 다운로드합니다</translation>
    </message>
    <message>
        <source>Removes the reminder of this update</source>
        <translation>이 업데이트에 대한 알림을 지웁니다</translation>
    </message>
</context>
<context>
    <name>UpdateReport</name>
    <message>
        <source>Time</source>
        <translation>시간</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>장치</translation>
    </message>
    <message>
        <source>Chip</source>
        <translation>칩</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>포트</translation>
    </message>
    <message>
        <source>%1 at %2 baud</source>
        <translation>%1, %2 보드</translation>
    </message>
    <message>
        <source>Old build</source>
        <translation>이전 빌드</translation>
    </message>
    <message>
        <source>New build</source>
        <translation>새 빌드</translation>
    </message>
    <message>
        <source>File</source>
        <translation>파일</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>주소</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>크기</translation>
    </message>
    <message>
        <source>%1 bytes</source>
        <translation>%1바이트</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>결과</translation>
    </message>
    <message>
        <source>Reason</source>
        <translation>이유</translation>
    </message>
    <message>
        <source>Flash</source>
        <translation>플래시</translation>
    </message>
    <message>
        <source>Status of the bootloader</source>
        <translation>부트로더 상태</translation>
    </message>
    <message>
        <source>Written</source>
        <translation>기록됨</translation>
    </message>
    <message>
        <source>Packets</source>
        <translation>패킷</translation>
    </message>
    <message>
        <source>%1 sent, of these %2 again</source>
        <translation>%1개 전송, 그중 재전송 %2개</translation>
    </message>
    <message>
        <source>Time for writing</source>
        <translation>쓰기 시간</translation>
    </message>
    <message>
        <source>%1 ms</source>
        <translation>%1 ms</translation>
    </message>
    <message>
        <source>Time for reading back</source>
        <translation>다시 읽기 시간</translation>
    </message>
</context>
<context>
    <name>WaveChart</name>
    <message>
        <source>No new samples</source>
        <translation>새 샘플 없음</translation>
    </message>
    <message>
        <source>Low-pass filter</source>
        <translation>저역 통과 필터</translation>
    </message>
    <message>
        <source>Trigger</source>
        <translation>트리거</translation>
    </message>
</context>
<context>
    <name>WaveChartBridge</name>
    <message>
        <source>Acceleration (G)</source>
        <translation>가속도 (G)</translation>
    </message>
    <message>
        <source>Angular Velocity (°/s)</source>
        <translation>각속도 (°/s)</translation>
    </message>
    <message>
        <source>Magnetic Field (μT)</source>
        <translation>자기장 (μT)</translation>
    </message>
    <message>
        <source>Euler Angles (°)</source>
        <translation>오일러 각 (°)</translation>
    </message>
    <message>
        <source>Quaternion (Norm)</source>
        <translation>쿼터니언 (정규화)</translation>
    </message>
    <message>
        <source>Pressure (Pa)</source>
        <translation>기압 (Pa)</translation>
    </message>
    <message>
        <source>The cutoff frequency must be above 0 Hz.</source>
        <translation>차단 주파수는 0 Hz보다 커야 합니다.</translation>
    </message>
    <message>
        <source>The cutoff frequency is too low for %1 samples per second.</source>
        <translation>차단 주파수가 샘플링 주파수 %1 Hz에 비해 너무 낮습니다.</translation>
    </message>
</context>
<context>
    <name>WaveTrigger</name>
    <message>
        <source>Off</source>
        <translation>꺼짐</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>대기 중</translation>
    </message>
    <message>
        <source>Catching</source>
        <translation>포착 중</translation>
    </message>
    <message>
        <source>Held</source>
        <translation>홀드 중</translation>
    </message>
</context>
<context>
    <name>WaveViewState</name>
    <message>
        <source>Trigger</source>
        <translation>트리거</translation>
    </message>
</context>
<context>
    <name>chart_text</name>
    <message>
        <source>%1 Hz · last %2 s of %3 s</source>
        <translation>%1 Hz · 최근 %2 s / 전체 %3 s</translation>
    </message>
    <message>
        <source>%1 Hz · %2 s to %3 s of %4 s</source>
        <translation>%1 Hz · %2 ~ %3 s / 전체 %4 s</translation>
    </message>
    <message>
        <source>Restart</source>
        <translation>재시작</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>정지</translation>
    </message>
    <message>
        <source>Gap</source>
        <translation>공백</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>일시 정지됨</translation>
    </message>
    <message>
        <source>%1 missing</source>
        <translation>누락 %1</translation>
    </message>
    <message>
        <source>The store ends here: %1 s</source>
        <translation>보관 데이터의 끝: %1 s</translation>
    </message>
</context>
<context>
    <name>form_about</name>
    <message>
        <source>About ORVEL-IMU</source>
        <translation>ORVEL-IMU 정보</translation>
    </message>
    <message>
        <source>KVCenter shows the data of inertial measurement units on a serial line and sets the units up.</source>
        <translation>KVCenter는 시리얼로 연결된 관성 측정 장치(IMU)의 데이터를 표시하고 장치를 설정합니다.</translation>
    </message>
    <message>
        <source>Toolkit</source>
        <translation>툴킷</translation>
    </message>
    <message>
        <source>Settings and logs</source>
        <translation>설정 및 로그</translation>
    </message>
    <message>
        <source>Folder of settings and logs</source>
        <translation>설정 및 로그 폴더</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>확인</translation>
    </message>
    <message>
        <source>Qt %1 (licence: GNU LGPL 3; Qt Quick 3D: GNU GPL 3)</source>
        <translation>Qt %1(라이선스: GNU LGPL 3, Qt Quick 3D: GNU GPL 3)</translation>
    </message>
</context>
<context>
    <name>form_base</name>
    <message>
        <source>No device connected</source>
        <translation>연결된 장치 없음</translation>
    </message>
    <message>
        <source>Open port...</source>
        <translation>포트 열기...</translation>
    </message>
    <message>
        <source>&amp;Serial</source>
        <translation>시리얼(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>보기(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Font size</source>
        <translation>글꼴 크기(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>도구(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>도움말(&amp;H)</translation>
    </message>
    <message>
        <source>Toolbar</source>
        <translation>도구 모음</translation>
    </message>
    <message>
        <source>&amp;Open port...</source>
        <translation>포트 열기(&amp;O)...</translation>
    </message>
    <message>
        <source>Ctrl+O</source>
        <translation>Ctrl+O</translation>
    </message>
    <message>
        <source>&amp;Close port</source>
        <translation>포트 닫기(&amp;C)</translation>
    </message>
    <message>
        <source>Ctrl+W</source>
        <translation>Ctrl+W</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>종료(&amp;Q)</translation>
    </message>
    <message>
        <source>Ctrl+Q</source>
        <translation>Ctrl+Q</translation>
    </message>
    <message>
        <source>&amp;Spectrum</source>
        <translation>스펙트럼(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;3D view</source>
        <translation>3D 보기(&amp;3)</translation>
    </message>
    <message>
        <source>&amp;Copy values</source>
        <translation>값 복사(&amp;C)</translation>
    </message>
    <message>
        <source>Ctrl+Shift+C</source>
        <translation>Ctrl+Shift+C</translation>
    </message>
    <message>
        <source>Copy all values of the selected node to the clipboard</source>
        <translation>선택한 노드의 모든 값을 클립보드에 복사합니다</translation>
    </message>
    <message>
        <source>&amp;Small</source>
        <translation>작게(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Medium</source>
        <translation>보통(&amp;M)</translation>
    </message>
    <message>
        <source>&amp;Big</source>
        <translation>크게(&amp;B)</translation>
    </message>
    <message>
        <source>&amp;Record...</source>
        <translation>기록(&amp;R)...</translation>
    </message>
    <message>
        <source>&amp;Device settings...</source>
        <translation>장치 설정(&amp;D)...</translation>
    </message>
    <message>
        <source>Ctrl+E</source>
        <translation>Ctrl+E</translation>
    </message>
    <message>
        <source>Identify and configure the device (Ctrl+E)</source>
        <translation>장치를 식별하고 설정합니다 (Ctrl+E)</translation>
    </message>
    <message>
        <source>&amp;Firmware update...</source>
        <translation>펌웨어 업데이트(&amp;F)...</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>정보(&amp;A)</translation>
    </message>
    <message>
        <source>Ctrl+R</source>
        <translation>Ctrl+R</translation>
    </message>
    <message>
        <source>Ctrl+F</source>
        <translation>Ctrl+F</translation>
    </message>
    <message>
        <source>Ctrl+3</source>
        <translation>Ctrl+3</translation>
    </message>
    <message>
        <source>&amp;Link health</source>
        <translation>통신 품질(&amp;L)</translation>
    </message>
    <message>
        <source>Ctrl+L</source>
        <translation>Ctrl+L</translation>
    </message>
    <message>
        <source>Numbers and traces</source>
        <translation>수치와 파형</translation>
    </message>
    <message>
        <source>&amp;Start recording</source>
        <translation>기록 시작(&amp;S)</translation>
    </message>
    <message>
        <source>F9</source>
        <translation>F9</translation>
    </message>
    <message>
        <source>Set &amp;marker</source>
        <translation>마커 설정(&amp;M)</translation>
    </message>
    <message>
        <source>M</source>
        <translation>M</translation>
    </message>
    <message>
        <source>Marks this moment in a file beside the recording</source>
        <translation>기록과 함께 저장되는 파일에 이 시점의 마커를 씁니다</translation>
    </message>
    <message>
        <source>No hardware at hand? The simulator behaves like a device.</source>
        <translation>실제 장치가 없으면 시뮬레이터를 사용할 수 있습니다. 시뮬레이터는 장치처럼 동작합니다.</translation>
    </message>
    <message>
        <source>Try without a device</source>
        <translation>장치 없이 사용해 보기</translation>
    </message>
    <message>
        <source>Start &amp;capture</source>
        <translation>캡처 시작(&amp;C)</translation>
    </message>
    <message>
        <source>Ctrl+F9</source>
        <translation>Ctrl+F9</translation>
    </message>
    <message>
        <source>&amp;New window</source>
        <translation>새 창(&amp;N)</translation>
    </message>
    <message>
        <source>Ctrl+Shift+N</source>
        <translation>Ctrl+Shift+N</translation>
    </message>
    <message>
        <source>Opens another window for another device</source>
        <translation>다른 장치를 위한 창을 엽니다</translation>
    </message>
    <message>
        <source>Open &amp;file...</source>
        <translation>파일 열기(&amp;F)...</translation>
    </message>
    <message>
        <source>Ctrl+Shift+O</source>
        <translation>Ctrl+Shift+O</translation>
    </message>
</context>
<context>
    <name>form_com_select</name>
    <message>
        <source>Open serial port</source>
        <translation>시리얼 포트 열기</translation>
    </message>
    <message>
        <source>&amp;Serial ports</source>
        <translation>시리얼 포트(&amp;S)</translation>
    </message>
    <message>
        <source>Serial ports</source>
        <translation>시리얼 포트</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>포트</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>설명</translation>
    </message>
    <message>
        <source>Maker</source>
        <translation>제조사</translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation>일련번호</translation>
    </message>
    <message>
        <source>No serial port found</source>
        <translation>시리얼 포트를 찾을 수 없음</translation>
    </message>
    <message>
        <source>&amp;Baud rate</source>
        <translation>보드 레이트(&amp;B)</translation>
    </message>
    <message>
        <source>Bits per second, as set in the device</source>
        <translation>초당 비트 수(장치에 설정된 값)</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>열기(&amp;O)</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>%1 is not there at the moment. Plug the device in, or choose another port.</source>
        <translation>지금은 %1 포트를 찾을 수 없습니다. 장치를 연결하거나 다른 포트를 선택하십시오.</translation>
    </message>
    <message>
        <source>%1 is not a serial port.</source>
        <translation>시리얼 포트가 아닙니다: %1</translation>
    </message>
    <message>
        <source>Plug the device in: it will appear here.

To try the program without a device, type demo: below. A device on another computer has an address there, such as tcp://192.168.1.20:4001.</source>
        <translation>장치를 연결하면 여기에 표시됩니다.

장치 없이 프로그램을 사용해 보려면 아래에 demo:를 입력하십시오. 다른 컴퓨터에 연결된 장치는 tcp://192.168.1.20:4001과 같은 주소로 열 수 있습니다.</translation>
    </message>
    <message>
        <source>&amp;Port or address</source>
        <translation>포트 또는 주소(&amp;P)</translation>
    </message>
    <message>
        <source>A port, or tcp://host:port, rfc2217://host:port, udp://host:port</source>
        <translation>포트 또는 tcp://host:port, rfc2217://host:port, udp://host:port</translation>
    </message>
    <message>
        <source>A port of the list, or typed by hand: the path of a port, or an address such as tcp://host:port, rfc2217://host:port?baud=115200, udp://host:port, file:path or demo:</source>
        <translation>목록의 포트 또는 직접 입력한 포트 경로나 주소(예: tcp://host:port, rfc2217://host:port?baud=115200, udp://host:port, file:path, demo:)</translation>
    </message>
    <message>
        <source>&amp;File...</source>
        <translation>파일(&amp;F)...</translation>
    </message>
    <message>
        <source>Play a capture or a recording</source>
        <translation>캡처 또는 기록을 재생합니다</translation>
    </message>
    <message>
        <source>&amp;Recent</source>
        <translation>최근 항목(&amp;R)</translation>
    </message>
    <message>
        <source>Sources opened last</source>
        <translation>최근에 연 소스</translation>
    </message>
    <message>
        <source>The sources that were opened last</source>
        <translation>최근에 연 소스 목록</translation>
    </message>
    <message>
        <source>Reco&amp;nnect</source>
        <translation>자동으로 다시 연결(&amp;N)</translation>
    </message>
    <message>
        <source>Choose a port, or type its path or an address.</source>
        <translation>포트를 선택하거나 경로 또는 주소를 입력하십시오.</translation>
    </message>
    <message>
        <source>Opens the same device again when it was lost and is back</source>
        <translation>연결이 끊어진 장치가 복귀하면 다시 엽니다</translation>
    </message>
    <message>
        <source>Not for this source: another device could not be told from it. An adapter with a serial number, a path in /dev/serial/by-id or an address on the network can be.</source>
        <translation>이 소스로는 다른 장치로 바뀌어도 구별할 수 없으므로 사용할 수 없습니다. 일련번호가 있는 어댑터, /dev/serial/by-id 경로, 네트워크 주소라면 사용할 수 있습니다.</translation>
    </message>
    <message>
        <source>Open Capture or Recording</source>
        <translation>캡처 또는 기록 열기</translation>
    </message>
    <message>
        <source>Captures and recordings (*.mcap *.csv);;All files (*)</source>
        <translation>캡처 및 기록 (*.mcap *.csv);;모든 파일 (*)</translation>
    </message>
</context>
<context>
    <name>form_fftchart</name>
    <message>
        <source>Acceleration</source>
        <translation>가속도</translation>
    </message>
    <message>
        <source>Value (mG)</source>
        <translation>진폭 (mG)</translation>
    </message>
    <message>
        <source>Angular Velocity</source>
        <translation>각속도</translation>
    </message>
    <message>
        <source>Value (deg/s)</source>
        <translation>진폭 (deg/s)</translation>
    </message>
    <message>
        <source>Live</source>
        <translation>실시간</translation>
    </message>
    <message>
        <source>Max Hold</source>
        <translation>최대 홀드</translation>
    </message>
    <message>
        <source>Avg Hold</source>
        <translation>평균 홀드</translation>
    </message>
    <message>
        <source>FFT Analysis</source>
        <translation>FFT 분석</translation>
    </message>
    <message>
        <source>Sample points:</source>
        <translation>샘플 포인트:</translation>
    </message>
    <message>
        <source>Window:</source>
        <translation>창 함수:</translation>
    </message>
    <message>
        <source>Hold:</source>
        <translation>홀드:</translation>
    </message>
    <message>
        <source>Amplitude Max:</source>
        <translation>진폭 최댓값:</translation>
    </message>
    <message>
        <source>Switch between acceleration and angular velocity spectra.</source>
        <translation>가속도 스펙트럼과 각속도 스펙트럼을 전환합니다.</translation>
    </message>
    <message>
        <source>Choose how many time-domain samples are included in each FFT calculation.</source>
        <translation>한 번의 FFT 계산에 사용할 시간 영역 샘플 수를 선택합니다.</translation>
    </message>
    <message>
        <source>Select the window function applied before the FFT.</source>
        <translation>FFT 전에 적용할 창 함수를 선택합니다.</translation>
    </message>
    <message>
        <source>Choose whether the spectrum is live, max-hold, or averaged across frames.</source>
        <translation>스펙트럼 표시 방식(실시간, 최대 홀드, 프레임 평균)을 선택합니다.</translation>
    </message>
    <message>
        <source>Set the visible FFT amplitude ceiling. Acceleration can be adjusted up to 32000 mG and angular velocity up to 4000 deg/s.</source>
        <translation>표시할 FFT 진폭의 최댓값을 설정합니다. 가속도는 32000 mG, 각속도는 4000 deg/s까지 설정할 수 있습니다.</translation>
    </message>
    <message>
        <source>Shows the current sample rate and the RMSE of the resultant time-domain signal.</source>
        <translation>현재 샘플링 주파수와 합성 시간 영역 신호의 RMSE를 표시합니다.</translation>
    </message>
    <message>
        <source>Start or pause FFT updates.</source>
        <translation>FFT 업데이트를 시작하거나 일시 정지합니다.</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>일시 정지</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>시작</translation>
    </message>
    <message>
        <source>Sample Frequency:%1Hz, RMSE of Norm:%2</source>
        <translation>샘플링 주파수: %1 Hz, 합성 RMSE: %2</translation>
    </message>
    <message>
        <source>FFT %1</source>
        <translation>%1 FFT</translation>
    </message>
    <message>
        <source>Hover to inspect frequency and amplitude. Mouse wheel zooms Y, Ctrl + wheel zooms X, left drag pans, and right or middle double-click resets the view.</source>
        <translation>마우스 포인터를 올리면 주파수와 진폭을 확인할 수 있습니다. 휠로 Y축, Ctrl + 휠로 X축을 확대/축소하고, 왼쪽 버튼으로 끌어 이동하며, 오른쪽 또는 가운데 버튼을 두 번 클릭하면 보기가 초기화됩니다.</translation>
    </message>
    <message>
        <source>Ignore the steady value</source>
        <translation>정상 상태 값 무시</translation>
    </message>
    <message>
        <source>Leaves 0 Hz, and what the window spreads of it into the bins beside it, out of peak and alarm. Otherwise gravity would be the highest peak of every acceleration spectrum.</source>
        <translation>0 Hz와 창 함수로 인해 옆 빈으로 누설된 성분을 피크와 알람에서 제외합니다. 제외하지 않으면 모든 가속도 스펙트럼에서 중력이 가장 높은 피크가 됩니다.</translation>
    </message>
</context>
<context>
    <name>form_link_health</name>
    <message>
        <source>Link health</source>
        <translation>통신 품질</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>회선</translation>
    </message>
    <message>
        <source>Bytes received</source>
        <translation>수신 바이트</translation>
    </message>
    <message>
        <source>All bytes of this connection</source>
        <translation>이번 연결에서 수신한 모든 바이트</translation>
    </message>
    <message>
        <source>Data packets</source>
        <translation>데이터 패킷</translation>
    </message>
    <message>
        <source>Packets whose checksum fits; their samples are shown and recorded</source>
        <translation>체크섬이 맞는 패킷이며 그 샘플이 표시되고 기록됩니다</translation>
    </message>
    <message>
        <source>Bootloader packets</source>
        <translation>부트로더 패킷</translation>
    </message>
    <message>
        <source>Answers of the bootloader during a firmware update</source>
        <translation>펌웨어 업데이트 중 부트로더의 응답</translation>
    </message>
    <message>
        <source>Checksum errors</source>
        <translation>체크섬 오류</translation>
    </message>
    <message>
        <source>Packets that were damaged on the line and rejected</source>
        <translation>회선에서 손상되어 거부된 패킷</translation>
    </message>
    <message>
        <source>Over-long lengths</source>
        <translation>길이 초과</translation>
    </message>
    <message>
        <source>Headers that claim more bytes than a packet can have</source>
        <translation>패킷 한도보다 많은 바이트를 나타내는 헤더</translation>
    </message>
    <message>
        <source>Unknown packet types</source>
        <translation>알 수 없는 패킷 유형</translation>
    </message>
    <message>
        <source>Start bytes that no known packet type follows</source>
        <translation>알려진 패킷 유형이 뒤따르지 않는 시작 바이트</translation>
    </message>
    <message>
        <source>Bytes outside packets</source>
        <translation>패킷 밖의 바이트</translation>
    </message>
    <message>
        <source>of these, noise</source>
        <translation>그중 노이즈</translation>
    </message>
    <message>
        <source>Bytes outside packets that cannot be text</source>
        <translation>패킷 밖의 바이트 중 텍스트일 수 없는 것</translation>
    </message>
    <message>
        <source>Bytes before the first packet</source>
        <translation>첫 패킷 앞의 바이트</translation>
    </message>
    <message>
        <source>A port is mostly opened in the middle of a packet: no sign of a fault</source>
        <translation>포트는 대개 패킷 중간에 열리므로 이상이 아닙니다</translation>
    </message>
    <message>
        <source>Last error</source>
        <translation>마지막 오류</translation>
    </message>
    <message>
        <source>Time of the last error</source>
        <translation>마지막 오류 시각</translation>
    </message>
    <message>
        <source>The computer&apos;s clock</source>
        <translation>컴퓨터 시각</translation>
    </message>
    <message>
        <source>Stream</source>
        <translation>스트림</translation>
    </message>
    <message>
        <source>Samples</source>
        <translation>샘플</translation>
    </message>
    <message>
        <source>Samples of all nodes</source>
        <translation>모든 노드의 샘플</translation>
    </message>
    <message>
        <source>Missing samples</source>
        <translation>누락된 샘플</translation>
    </message>
    <message>
        <source>By the time stamps of the samples, for all nodes; a dash when they have none</source>
        <translation>모든 노드 샘플의 타임스탬프 기준이며 타임스탬프가 없으면 줄표로 표시합니다</translation>
    </message>
    <message>
        <source>Lost</source>
        <translation>누락률</translation>
    </message>
    <message>
        <source>Share of missing samples among all that the device sent</source>
        <translation>장치가 보낸 전체 샘플 중 누락된 비율</translation>
    </message>
    <message>
        <source>Largest gap</source>
        <translation>최대 끊김</translation>
    </message>
    <message>
        <source>Longest time between two samples with others missing between them, by the device&apos;s clock</source>
        <translation>사이에 누락이 있는 두 샘플 간의 최장 시간(장치 시계 기준)</translation>
    </message>
    <message>
        <source>Last gap</source>
        <translation>마지막 끊김</translation>
    </message>
    <message>
        <source>The computer&apos;s clock at the end of the last gap</source>
        <translation>마지막 끊김이 끝난 컴퓨터 시각</translation>
    </message>
    <message>
        <source>Clock jumps</source>
        <translation>시계 점프</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>기록</translation>
    </message>
    <message>
        <source>Records dropped</source>
        <translation>버려진 레코드</translation>
    </message>
    <message>
        <source>The disk was too slow for them</source>
        <translation>디스크 쓰기 속도가 너무 느렸습니다</translation>
    </message>
    <message>
        <source>Records not written</source>
        <translation>쓰지 못한 레코드</translation>
    </message>
    <message>
        <source>The file could not be written</source>
        <translation>파일에 쓸 수 없었습니다</translation>
    </message>
    <message>
        <source>Nodes</source>
        <translation>노드</translation>
    </message>
    <message>
        <source>Figures of each node</source>
        <translation>노드별 수치</translation>
    </message>
    <message>
        <source>Nothing has been connected yet. Open a serial port to see how completely its data arrive.</source>
        <translation>아직 연결된 장치가 없습니다. 시리얼 포트를 열면 데이터 수신 상태를 볼 수 있습니다.</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>복사(&amp;C)</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>닫기(&amp;L)</translation>
    </message>
    <message>
        <source>checksum</source>
        <translation>체크섬</translation>
    </message>
    <message>
        <source>over-long length</source>
        <translation>길이 초과</translation>
    </message>
    <message>
        <source>unknown packet type</source>
        <translation>알 수 없는 패킷 유형</translation>
    </message>
    <message>
        <source>noise</source>
        <translation>노이즈</translation>
    </message>
    <message>
        <source>Copy all figures to the clipboard</source>
        <translation>모든 수치를 클립보드에 복사합니다</translation>
    </message>
    <message>
        <source>There is nothing to copy yet</source>
        <translation>아직 복사할 내용이 없습니다</translation>
    </message>
    <message>
        <source>Connected: %1, %2 baud</source>
        <translation>연결됨: %1, %2 baud</translation>
    </message>
    <message>
        <source>Closed: %1, %2 baud. Figures of the last connection.</source>
        <translation>닫힘: %1, %2 baud. 지난 연결의 수치입니다.</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Missing</source>
        <translation>누락</translation>
    </message>
    <message>
        <source>Text that the device answers to commands, and the remains of damaged packets</source>
        <translation>명령에 대한 장치의 텍스트 응답과 손상된 패킷의 나머지</translation>
    </message>
    <message>
        <source>The latest damage on the line</source>
        <translation>회선에서 마지막으로 일어난 손상</translation>
    </message>
    <message>
        <source>The device restarted or its time was set; what was lost in between is not known</source>
        <translation>장치가 다시 시작되었거나 시간이 설정되었으며, 그동안의 누락 수는 알 수 없습니다</translation>
    </message>
</context>
<context>
    <name>form_record</name>
    <message>
        <source>Record to file</source>
        <translation>파일로 기록</translation>
    </message>
    <message>
        <source>&amp;Folder</source>
        <translation>폴더(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>찾아보기(&amp;B)...</translation>
    </message>
    <message>
        <source>&amp;Name</source>
        <translation>이름(&amp;N)</translation>
    </message>
    <message>
        <source>Elapsed time</source>
        <translation>경과 시간</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>기록 속도</translation>
    </message>
    <message>
        <source>File size</source>
        <translation>파일 크기</translation>
    </message>
    <message>
        <source>Free on disk</source>
        <translation>디스크 여유 공간</translation>
    </message>
    <message>
        <source>File</source>
        <translation>파일</translation>
    </message>
    <message>
        <source>Show in f&amp;older</source>
        <translation>폴더 열기(&amp;O)</translation>
    </message>
    <message>
        <source>Opens the folder of the recording</source>
        <translation>기록 파일이 있는 폴더를 엽니다</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>닫기(&amp;C)</translation>
    </message>
    <message>
        <source>Type a name.</source>
        <translation>이름을 입력하십시오.</translation>
    </message>
    <message>
        <source>This name is too long.</source>
        <translation>이름이 너무 깁니다.</translation>
    </message>
    <message>
        <source>A name cannot hold any of %1</source>
        <translation>이름에 사용할 수 없는 문자: %1</translation>
    </message>
    <message>
        <source>This name is reserved by some systems. Choose another one.</source>
        <translation>일부 시스템에서 예약된 이름입니다. 다른 이름을 지정하십시오.</translation>
    </message>
    <message>
        <source>Folder for recordings</source>
        <translation>기록 폴더</translation>
    </message>
    <message>
        <source>Choose a folder.</source>
        <translation>폴더를 선택하십시오.</translation>
    </message>
    <message>
        <source>&amp;Stop recording</source>
        <translation>기록 중지(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Start recording</source>
        <translation>기록 시작(&amp;S)</translation>
    </message>
    <message>
        <source>Writes what has arrived and closes the file</source>
        <translation>수신한 데이터를 쓰고 파일을 닫습니다</translation>
    </message>
    <message>
        <source>Writes every sample that arrives into a file</source>
        <translation>수신하는 모든 샘플을 파일에 씁니다</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>기록 중</translation>
    </message>
    <message>
        <source>Recording ended: the port was closed</source>
        <translation>포트가 닫혀 기록이 종료됨</translation>
    </message>
    <message>
        <source>Recording stopped</source>
        <translation>기록 중지됨</translation>
    </message>
    <message>
        <source>Not recording</source>
        <translation>기록하지 않음</translation>
    </message>
    <message>
        <source>Recording goes on when this window is closed.</source>
        <translation>이 창을 닫아도 기록은 계속됩니다.</translation>
    </message>
    <message>
        <source>Stop the recording to change this</source>
        <translation>변경하려면 기록을 중지하십시오</translation>
    </message>
    <message>
        <source>This folder was created for the recording.</source>
        <translation>이 폴더는 기록을 위해 생성되었습니다.</translation>
    </message>
    <message>
        <source>This folder does not exist yet: starting creates it.</source>
        <translation>아직 없는 폴더입니다. 기록을 시작하면 생성됩니다.</translation>
    </message>
    <message>
        <source>Saved as %1; a new file begins every hour.</source>
        <translation>저장 이름: %1. 1시간마다 새 파일이 시작됩니다.</translation>
    </message>
    <message>
        <source>%1 records/s</source>
        <translation>%1건/초</translation>
    </message>
    <message>
        <source>%1, enough for days</source>
        <translation>%1(며칠 이상 기록 가능)</translation>
    </message>
    <message>
        <source>%1, enough for %2 h</source>
        <translation>%1(약 %2시간 기록 가능)</translation>
    </message>
    <message>
        <source>%1, enough for %2 min</source>
        <translation>%1(약 %2분 기록 가능)</translation>
    </message>
    <message>
        <source>%1 is a file, not a folder.</source>
        <translation>폴더가 아니라 파일입니다: %1</translation>
    </message>
    <message>
        <source>The folder %1 cannot be created. Choose another one.</source>
        <translation>%1 폴더를 만들 수 없습니다. 다른 폴더를 선택하십시오.</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>%1 파일에 쓸 수 없습니다: %2</translation>
    </message>
    <message>
        <source>The disk is too slow. Records dropped: %1</source>
        <translation>디스크 쓰기 속도가 너무 느립니다. 버려진 레코드 수: %1</translation>
    </message>
    <message>
        <source>The file cannot be written: %1</source>
        <translation>파일에 쓸 수 없습니다: %1</translation>
    </message>
    <message>
        <source>Records that could not be written: %1</source>
        <translation>쓰지 못한 레코드 수: %1</translation>
    </message>
    <message>
        <source>%1 has been deleted or moved. Stop and start again to record into a new file.</source>
        <translation>%1 파일이 삭제되거나 이동되었습니다. 새 파일에 기록하려면 기록을 중지한 다음 다시 시작하십시오.</translation>
    </message>
    <message>
        <source>The disk is nearly full.</source>
        <translation>디스크 여유 공간이 거의 없습니다.</translation>
    </message>
    <message>
        <source>Records written</source>
        <translation>기록된 레코드 수</translation>
    </message>
    <message>
        <source>The folder %1 cannot be shown.</source>
        <translation>%1 폴더를 열 수 없습니다.</translation>
    </message>
    <message>
        <source>Writing the last records…</source>
        <translation>마지막 레코드를 쓰는 중…</translation>
    </message>
    <message>
        <source>%1, enough for less than 1 min</source>
        <translation>%1(1분 미만 기록 가능)</translation>
    </message>
    <message>
        <source>The last recording is still being written. Try again when that has ended.</source>
        <translation>이전 기록을 아직 쓰고 있습니다. 끝난 뒤 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>Starting…</source>
        <translation>시작하는 중…</translation>
    </message>
    <message>
        <source>Stop &amp;after</source>
        <translation>시간 제한(&amp;A)</translation>
    </message>
    <message>
        <source>Longest time in minutes</source>
        <translation>최대 시간(분)</translation>
    </message>
    <message>
        <source> min</source>
        <translation> 분</translation>
    </message>
    <message>
        <source>Stop a&amp;t</source>
        <translation>크기 제한(&amp;T)</translation>
    </message>
    <message>
        <source>Largest size of all files in MiB</source>
        <translation>모든 파일의 최대 크기 합계(MiB)</translation>
    </message>
    <message>
        <source>When the connection was lost, recording goes on in a new file as soon as the port is open again</source>
        <translation>연결이 끊어진 경우 포트가 다시 열리면 새 파일에 기록을 계속합니다</translation>
    </message>
    <message>
        <source>Waiting for the connection to come back</source>
        <translation>다시 연결되기를 기다리는 중</translation>
    </message>
    <message>
        <source>Recording ended: the time is up</source>
        <translation>설정한 시간이 되어 기록이 종료됨</translation>
    </message>
    <message>
        <source>Recording ended: the size is reached</source>
        <translation>설정한 크기에 도달하여 기록이 종료됨</translation>
    </message>
    <message>
        <source>Open the port again to go on.</source>
        <translation>계속하려면 포트를 다시 여십시오.</translation>
    </message>
    <message>
        <source>A file holds 16 nodes. Not recorded: %1</source>
        <translation>파일 하나에는 노드를 16개까지 기록할 수 있습니다. 기록되지 않는 노드: %1</translation>
    </message>
    <message>
        <source>A file beside the recording cannot be written: %1</source>
        <translation>기록과 함께 저장되는 파일에 쓸 수 없습니다: %1</translation>
    </message>
    <message>
        <source>Continue after the cable was unplu&amp;gged</source>
        <translation>케이블이 분리된 뒤에도 기록 계속(&amp;G)</translation>
    </message>
    <message>
        <source>Not connected. Open a serial port first.</source>
        <translation>연결되지 않았습니다. 먼저 시리얼 포트를 여십시오.</translation>
    </message>
</context>
<context>
    <name>form_settings</name>
    <message>
        <source>Device settings</source>
        <translation>장치 설정</translation>
    </message>
    <message>
        <source>Product</source>
        <translation>제품</translation>
    </message>
    <message>
        <source>&amp;Identify</source>
        <translation>식별(&amp;I)</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>모델</translation>
    </message>
    <message>
        <source>Build</source>
        <translation>빌드</translation>
    </message>
    <message>
        <source>&amp;Module</source>
        <translation>모듈(&amp;M)</translation>
    </message>
    <message>
        <source>&amp;Node ID</source>
        <translation>노드 ID(&amp;N)</translation>
    </message>
    <message>
        <source>Choose</source>
        <translation>선택</translation>
    </message>
    <message>
        <source>Number of the module in a radio network, 0 to 255</source>
        <translation>무선 네트워크의 모듈 번호(0~255)</translation>
    </message>
    <message>
        <source>Output &amp;rate (Hz)</source>
        <translation>출력 속도(&amp;R) (Hz)</translation>
    </message>
    <message>
        <source>&amp;Attitude mode</source>
        <translation>자세 모드(&amp;A)</translation>
    </message>
    <message>
        <source>0: 6-axis, without magnetometer</source>
        <translation>0: 6축(자력계 미사용)</translation>
    </message>
    <message>
        <source>1: 9-axis, with magnetometer</source>
        <translation>1: 9축(자력계 사용)</translation>
    </message>
    <message>
        <source>Leave as it is</source>
        <translation>변경 안 함</translation>
    </message>
    <message>
        <source>Which settings can be changed depends on the device. Connect it and identify it.</source>
        <translation>변경할 수 있는 설정은 장치에 따라 다릅니다. 장치를 연결하고 식별하십시오.</translation>
    </message>
    <message>
        <source>&amp;Save to device</source>
        <translation>장치에 저장(&amp;S)</translation>
    </message>
    <message>
        <source>C&amp;ommands</source>
        <translation>명령(&amp;O)</translation>
    </message>
    <message>
        <source>Sent and received</source>
        <translation>송수신</translation>
    </message>
    <message>
        <source>&amp;Copy log</source>
        <translation>로그 복사(&amp;C)</translation>
    </message>
    <message>
        <source>Nothing sent yet</source>
        <translation>아직 전송한 내용 없음</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>닫기(&amp;L)</translation>
    </message>
    <message>
        <source>Read info</source>
        <translation>정보 읽기</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>리셋</translation>
    </message>
    <message>
        <source>Stop output</source>
        <translation>출력 중지</translation>
    </message>
    <message>
        <source>Resume output</source>
        <translation>출력 재개</translation>
    </message>
    <message>
        <source>Save config</source>
        <translation>설정 저장</translation>
    </message>
    <message>
        <source>Log COM config</source>
        <translation>COM 설정 출력</translation>
    </message>
    <message>
        <source>Log user config</source>
        <translation>사용자 설정 출력</translation>
    </message>
    <message>
        <source>Log disable</source>
        <translation>로그 끄기</translation>
    </message>
    <message>
        <source>Reboot</source>
        <translation>다시 시작</translation>
    </message>
    <message>
        <source>No device identified</source>
        <translation>식별된 장치 없음</translation>
    </message>
    <message>
        <source>Saving does not change the rate of this device.</source>
        <translation>이 장치의 출력 속도는 저장해도 바뀌지 않습니다.</translation>
    </message>
    <message>
        <source>Waiting for the device: %1</source>
        <translation>장치 응답 대기 중: %1</translation>
    </message>
    <message>
        <source>Identify the device first.</source>
        <translation>먼저 장치를 식별하십시오.</translation>
    </message>
    <message>
        <source>Choose a node ID first.</source>
        <translation>먼저 노드 ID를 선택하십시오.</translation>
    </message>
    <message>
        <source>Choose an output rate first.</source>
        <translation>먼저 출력 속도를 선택하십시오.</translation>
    </message>
    <message>
        <source>Sends %1</source>
        <translation>%1 명령을 전송합니다</translation>
    </message>
    <message>
        <source>Stops the output, reads what the device is and resumes the output</source>
        <translation>출력을 중지하고 장치 정보를 읽은 다음 출력을 재개합니다</translation>
    </message>
    <message>
        <source>Writes these settings and restarts the device</source>
        <translation>이 설정을 장치에 쓰고 장치를 다시 시작합니다</translation>
    </message>
    <message>
        <source>Saving restarts the device; this takes 2 seconds.</source>
        <translation>저장하면 장치가 다시 시작됩니다(2초 소요).</translation>
    </message>
    <message>
        <source>The device does not answer. Check the baud rate, then identify it again.</source>
        <translation>장치가 응답하지 않습니다. 보드 레이트를 확인한 다음 다시 식별하십시오.</translation>
    </message>
    <message>
        <source>The device refused %1.</source>
        <translation>장치가 명령을 거부했습니다: %1.</translation>
    </message>
    <message>
        <source>The settings were sent and the device has restarted.</source>
        <translation>설정을 전송했으며 장치가 다시 시작되었습니다.</translation>
    </message>
    <message>
        <source>The device refused at least one of %1.</source>
        <translation>장치가 다음 명령 중 하나 이상을 거부했습니다: %1.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>The device does not answer, although its data arrive. Identify it again.</source>
        <translation>데이터는 수신되지만 장치가 응답하지 않습니다. 다시 식별하십시오.</translation>
    </message>
    <message>
        <source>The answer was damaged on the line. Identify the device again.</source>
        <translation>응답이 회선에서 손상되었습니다. 장치를 다시 식별하십시오.</translation>
    </message>
    <message>
        <source>Save anyway</source>
        <translation>그래도 저장</translation>
    </message>
    <message>
        <source>The device is not sending text. The baud rate may be wrong.</source>
        <translation>장치가 보내는 것은 텍스트가 아닙니다. 보드 레이트가 잘못되었을 수 있습니다.</translation>
    </message>
    <message>
        <source>%1 Hz needs %2 % of the line&apos;s capacity at %3 baud: samples will be lost.</source>
        <translation>%1 Hz 출력에는 %3 baud 회선 용량의 %2 %가 필요하므로 샘플이 손실됩니다.</translation>
    </message>
</context>
<context>
    <name>form_threed</name>
    <message>
        <source>3D view</source>
        <translation>3D 보기</translation>
    </message>
    <message>
        <source>Attitude</source>
        <translation>자세</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>기준 자세</translation>
    </message>
    <message>
        <source>Set &amp;home</source>
        <translation>기준 설정(&amp;H)</translation>
    </message>
    <message>
        <source>Take the live pose as the reference</source>
        <translation>현재 자세를 기준으로 설정합니다</translation>
    </message>
    <message>
        <source>&amp;Clear home</source>
        <translation>기준 해제(&amp;C)</translation>
    </message>
    <message>
        <source>Forget the reference</source>
        <translation>설정한 기준 자세를 지웁니다</translation>
    </message>
    <message>
        <source>Mounting</source>
        <translation>장착</translation>
    </message>
    <message>
        <source>How the axes of the device lie in the body</source>
        <translation>기체에 대한 장치 축의 방향입니다</translation>
    </message>
    <message>
        <source>RFU / ENU 312 (Z-X-Y)</source>
        <translation>RFU / ENU 312 (Z-X-Y)</translation>
    </message>
    <message>
        <source>FLU / NWU / ZYX Intrinsic (Z-Y-X)</source>
        <translation>FLU / NWU / ZYX 내재적 (Z-Y-X)</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>모델</translation>
    </message>
    <message>
        <source>Jet</source>
        <translation>제트기</translation>
    </message>
    <message>
        <source>Cube</source>
        <translation>정육면체</translation>
    </message>
    <message>
        <source>Plane</source>
        <translation>비행기</translation>
    </message>
    <message>
        <source>Spaceship</source>
        <translation>우주선</translation>
    </message>
    <message>
        <source>&amp;Load…</source>
        <translation>불러오기(&amp;L)…</translation>
    </message>
    <message>
        <source>Show a model from a file: X forward, Y up, Z to the right</source>
        <translation>파일의 모델을 표시합니다(X: 앞, Y: 위, Z: 오른쪽)</translation>
    </message>
    <message>
        <source>&amp;Reset view</source>
        <translation>시점 초기화(&amp;R)</translation>
    </message>
    <message>
        <source>Put the camera back (Home key in the picture, or double-click)</source>
        <translation>카메라를 처음 위치로 되돌립니다(3D 화면에서 Home 키 또는 두 번 클릭)</translation>
    </message>
    <message>
        <source>The 3D picture needs OpenGL, which is not available here. The numbers are complete.</source>
        <translation>3D 표시에 필요한 OpenGL을 사용할 수 없습니다. 수치는 모두 표시됩니다.</translation>
    </message>
    <message>
        <source>The 3D picture cannot be drawn here. The numbers are complete.</source>
        <translation>3D 화면을 그릴 수 없습니다. 수치는 모두 표시됩니다.</translation>
    </message>
    <message>
        <source>Current preset: RFU body / ENU navigation, Euler 312 intrinsic (Z-X-Y).</source>
        <translation>현재 프리셋: RFU 기체 좌표계 / ENU 항법 좌표계, 오일러 각 312 내재적 (Z-X-Y).</translation>
    </message>
    <message>
        <source>Current preset: FLU body or NWU body, Euler ZYX intrinsic (Z-Y-X).</source>
        <translation>현재 프리셋: FLU 또는 NWU 기체 좌표계, 오일러 각 ZYX 내재적 (Z-Y-X).</translation>
    </message>
    <message>
        <source>Current preset: Unknown.</source>
        <translation>현재 프리셋: 알 수 없음.</translation>
    </message>
    <message>
        <source>Capture the current live pose as Home to compare mounting bias and installation offsets.</source>
        <translation>현재 자세를 기준으로 저장하면 장착 기울기와 설치 오차를 비교할 수 있습니다.</translation>
    </message>
    <message>
        <source>Home pose captured. Delta shows the live attitude relative to the stored home reference.</source>
        <translation>기준 자세를 저장했습니다. &apos;기준 대비&apos;는 저장된 기준에 대한 현재 자세입니다.</translation>
    </message>
    <message>
        <source>Waiting for live attitude data to capture home pose.</source>
        <translation>기준 자세를 저장하기 위해 자세 데이터를 기다리는 중입니다.</translation>
    </message>
    <message>
        <source>No attitude</source>
        <translation>자세 데이터 없음</translation>
    </message>
    <message>
        <source>From quaternion</source>
        <translation>쿼터니언에서 계산</translation>
    </message>
    <message>
        <source>From Euler angles</source>
        <translation>오일러 각에서 계산</translation>
    </message>
    <message>
        <source>Open 3D asset</source>
        <translation>3D 모델 열기</translation>
    </message>
    <message>
        <source>3D Assets (*.obj *.mesh)</source>
        <translation>3D 모델 (*.obj *.mesh)</translation>
    </message>
    <message>
        <source>The 3D picture could not be loaded. See the log for the reason.</source>
        <translation>3D 화면을 불러올 수 없습니다. 원인은 로그를 확인하십시오.</translation>
    </message>
</context>
<context>
    <name>form_updater</name>
    <message>
        <source>Firmware Update</source>
        <translation>펌웨어 업데이트</translation>
    </message>
    <message>
        <source>Image file</source>
        <translation>이미지 파일</translation>
    </message>
    <message>
        <source>Open File</source>
        <translation>파일 열기</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>연결</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>다운로드</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>로그</translation>
    </message>
    <message>
        <source>Copies what is shown above together with the log, for a report</source>
        <translation>위에 표시된 내용을 로그와 함께 복사합니다(보고용)</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>닫기(&amp;C)</translation>
    </message>
    <message>
        <source>The port was closed: connect again before the download.</source>
        <translation>포트가 닫혔습니다. 다운로드하기 전에 다시 연결하십시오.</translation>
    </message>
    <message>
        <source>Please select image
</source>
        <translation>이미지를 선택하십시오
</translation>
    </message>
    <message>
        <source>PATH: %1
</source>
        <translation>경로: %1
</translation>
    </message>
    <message>
        <source>Text Files(*.hex)</source>
        <translation>HEX 파일 (*.hex)</translation>
    </message>
    <message>
        <source>FILE:%1
</source>
        <translation>파일: %1
</translation>
    </message>
    <message>
        <source>No file selected
</source>
        <translation>선택된 파일 없음
</translation>
    </message>
    <message>
        <source>Failed to open file
</source>
        <translation>파일을 열지 못했습니다
</translation>
    </message>
    <message>
        <source>Failed to parse HEX file
</source>
        <translation>HEX 파일을 분석하지 못했습니다
</translation>
    </message>
    <message>
        <source>SIZE:%1 bytes
</source>
        <translation>크기: %1바이트
</translation>
    </message>
    <message>
        <source>SP:0x%1
</source>
        <translation>SP:0x%1
</translation>
    </message>
    <message>
        <source>PC:0x%1
</source>
        <translation>PC:0x%1
</translation>
    </message>
    <message>
        <source>ADDR:0x%1
</source>
        <translation>주소: 0x%1
</translation>
    </message>
    <message>
        <source>
--- Connecting to bootloader ---
</source>
        <translation>
--- 부트로더에 연결하는 중 ---
</translation>
    </message>
    <message>
        <source>CONNECT ERR<byte value="xd"/>
</source>
        <translation>연결 오류<byte value="xd"/>
</translation>
    </message>
    <message>
        <source>Please check:
</source>
        <translation>다음 사항을 확인하십시오:
</translation>
    </message>
    <message>
        <source>  - Device is powered on
</source>
        <translation>  - 장치의 전원이 켜져 있음
</translation>
    </message>
    <message>
        <source>  - Serial port is correct
</source>
        <translation>  - 시리얼 포트가 올바름
</translation>
    </message>
    <message>
        <source>  - Bootloader is installed
</source>
        <translation>  - 부트로더가 설치되어 있음
</translation>
    </message>
    <message>
        <source>Connect OK
</source>
        <translation>연결되었습니다
</translation>
    </message>
    <message>
        <source>PKT SIZE:%1
</source>
        <translation>패킷 크기: %1
</translation>
    </message>
    <message>
        <source>FLASH SIZE:%1KB
</source>
        <translation>플래시 크기: %1 KB
</translation>
    </message>
    <message>
        <source>SDID:</source>
        <translation>SDID:</translation>
    </message>
    <message>
        <source>KBOOT:%1.%2.%3
</source>
        <translation>KBOOT:%1.%2.%3
</translation>
    </message>
    <message>
        <source>SECTOR:%1
</source>
        <translation>섹터: %1
</translation>
    </message>
    <message>
        <source>
Ready to download firmware.
</source>
        <translation>
펌웨어를 다운로드할 준비가 되었습니다.
</translation>
    </message>
    <message>
        <source>
--- Loading HEX file ---
</source>
        <translation>
--- HEX 파일을 불러오는 중 ---
</translation>
    </message>
    <message>
        <source>NO IMAGE<byte value="xd"/>
</source>
        <translation>이미지 없음<byte value="xd"/>
</translation>
    </message>
    <message>
        <source>
--- Starting download ---
</source>
        <translation>
--- 다운로드를 시작합니다 ---
</translation>
    </message>
    <message>
        <source>Download failed
</source>
        <translation>다운로드하지 못했습니다
</translation>
    </message>
    <message>
        <source>Not connected to bootloader<byte value="xd"/>
</source>
        <translation>부트로더에 연결되어 있지 않습니다<byte value="xd"/>
</translation>
    </message>
    <message>
        <source>Press Connect first: the device has to run its bootloader.</source>
        <translation>먼저 &apos;연결&apos;을 눌러 장치의 부트로더를 실행하십시오.</translation>
    </message>
    <message>
        <source>Update complete, image running...
</source>
        <translation>업데이트 완료, 이미지 실행 중...
</translation>
    </message>
    <message>
        <source>A download is running.</source>
        <translation>다운로드 중입니다.</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>연결됨</translation>
    </message>
    <message>
        <source>Chooses the image, an Intel HEX file</source>
        <translation>이미지(Intel HEX 파일)를 선택합니다</translation>
    </message>
    <message>
        <source>Restarts the device into its bootloader</source>
        <translation>장치를 다시 시작하여 부트로더로 들어갑니다</translation>
    </message>
    <message>
        <source>Erases the device&apos;s firmware and writes the image</source>
        <translation>장치의 펌웨어를 지우고 이미지를 씁니다</translation>
    </message>
    <message>
        <source>Press Connect first.</source>
        <translation>먼저 &apos;연결&apos;을 누르십시오.</translation>
    </message>
    <message>
        <source>Not connected. Connect restarts the device; this takes up to 4 s.</source>
        <translation>연결되지 않았습니다. &apos;연결&apos;을 누르면 장치가 다시 시작됩니다(최대 4초).</translation>
    </message>
    <message>
        <source>Ready to download</source>
        <translation>다운로드 준비 완료</translation>
    </message>
    <message>
        <source>Waiting for the bootloader</source>
        <translation>부트로더 연결 대기 중</translation>
    </message>
    <message>
        <source>The connection to the device was lost.</source>
        <translation>장치와의 연결이 끊어졌습니다.</translation>
    </message>
    <message>
        <source>The bootloader refused a packet.</source>
        <translation>부트로더가 패킷을 거부했습니다.</translation>
    </message>
    <message>
        <source>The bootloader aborted the transfer.</source>
        <translation>부트로더가 전송을 중단했습니다.</translation>
    </message>
    <message>
        <source>The bootloader did not answer the erase command within 1.5 s.</source>
        <translation>부트로더가 지우기 명령에 1.5초 안에 응답하지 않았습니다.</translation>
    </message>
    <message>
        <source>The bootloader did not answer the write command within 1.5 s.</source>
        <translation>부트로더가 쓰기 명령에 1.5초 안에 응답하지 않았습니다.</translation>
    </message>
    <message>
        <source>The bootloader did not acknowledge a packet.</source>
        <translation>부트로더가 패킷 수신을 확인하지 않았습니다.</translation>
    </message>
    <message>
        <source>No bootloader answered.</source>
        <translation>응답한 부트로더가 없습니다.</translation>
    </message>
    <message>
        <source>The flash may be partly erased: the firmware may not start any more.</source>
        <translation>플래시의 일부가 지워져 펌웨어가 더 이상 시작되지 않을 수 있습니다.</translation>
    </message>
    <message>
        <source>The flash is erased: the device has no firmware now.</source>
        <translation>플래시가 지워져 현재 장치에 펌웨어가 없습니다.</translation>
    </message>
    <message>
        <source>Nothing was written, but the flash may be erased: the firmware may not start any more.</source>
        <translation>아무것도 쓰지 않았지만, 플래시가 지워져 펌웨어가 더 이상 시작되지 않을 수 있습니다.</translation>
    </message>
    <message>
        <source>%1 of %2 bytes were written: the firmware is incomplete and cannot start.</source>
        <translation>%2바이트 중 %1바이트를 썼습니다. 펌웨어가 불완전하여 시작할 수 없습니다.</translation>
    </message>
    <message>
        <source>Check the cable, open the port again and press Connect.</source>
        <translation>케이블을 확인하고 포트를 다시 연 다음 &apos;연결&apos;을 누르십시오.</translation>
    </message>
    <message>
        <source>Check power, port and baud rate, then press Connect again.</source>
        <translation>전원, 포트, 보드 레이트를 확인한 다음 &apos;연결&apos;을 다시 누르십시오.</translation>
    </message>
    <message>
        <source>It had reported status %1 before.</source>
        <translation>그 전에 부트로더가 보고한 상태 코드: %1.</translation>
    </message>
    <message>
        <source>%1 of %2 bytes</source>
        <translation>%1 / %2바이트</translation>
    </message>
    <message>
        <source>%1 · %2 KB/s · %3 s left</source>
        <translation>%1 · %2 KB/s · %3초 남음</translation>
    </message>
    <message>
        <source>Bootloader %1, %2 KB of flash in sectors of %3 bytes, packets of up to %4 bytes, chip %5</source>
        <translation>부트로더 %1, 플래시 %2 KB(섹터 %3바이트), 최대 패킷 %4바이트, 칩 %5</translation>
    </message>
    <message>
        <source>%1 bytes from %2, stack pointer %3, reset vector %4</source>
        <translation>%2부터 %1바이트, 스택 포인터 %3, 리셋 벡터 %4</translation>
    </message>
    <message>
        <source>Restart device</source>
        <translation>장치 다시 시작</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>중지</translation>
    </message>
    <message>
        <source>The device is still in its bootloader: it sends no data until it restarts.</source>
        <translation>장치가 아직 부트로더 상태입니다. 다시 시작할 때까지 데이터를 보내지 않습니다.</translation>
    </message>
    <message>
        <source>Stop the download</source>
        <translation>다운로드 중지</translation>
    </message>
    <message>
        <source>No bootloader is connected.</source>
        <translation>연결된 부트로더가 없습니다.</translation>
    </message>
    <message>
        <source>The download is being stopped.</source>
        <translation>다운로드를 중지하는 중입니다.</translation>
    </message>
    <message>
        <source>Stops the download; asks first</source>
        <translation>다운로드를 중지합니다(먼저 확인)</translation>
    </message>
    <message>
        <source>No download is running.</source>
        <translation>진행 중인 다운로드가 없습니다.</translation>
    </message>
    <message>
        <source>The download was stopped.</source>
        <translation>다운로드가 중지되었습니다.</translation>
    </message>
    <message>
        <source>&amp;Save report…</source>
        <translation>보고서 저장(&amp;S)…</translation>
    </message>
    <message>
        <source>Copy &amp;log</source>
        <translation>로그 복사(&amp;L)</translation>
    </message>
    <message>
        <source>The report was saved to %1.</source>
        <translation>보고서를 %1에 저장했습니다.</translation>
    </message>
    <message>
        <source>The report could not be saved to %1: %2</source>
        <translation>보고서를 %1에 저장할 수 없습니다: %2</translation>
    </message>
    <message>
        <source>The serial port is being opened: press Connect again in a moment.</source>
        <translation>시리얼 포트를 여는 중입니다. 잠시 후 &apos;연결&apos;을 다시 누르십시오.</translation>
    </message>
    <message>
        <source>Nothing was erased and nothing was written: see the reasons above.</source>
        <translation>아무것도 지우거나 쓰지 않았습니다. 위에 표시된 이유를 확인하십시오.</translation>
    </message>
    <message>
        <source>Restart the program</source>
        <translation>프로그램 다시 시작</translation>
    </message>
    <message>
        <source>Use packets of %1 bytes</source>
        <translation>%1바이트 패킷 사용</translation>
    </message>
    <message>
        <source>Save Report</source>
        <translation>보고서 저장</translation>
    </message>
    <message>
        <source>Text Files(*.txt)</source>
        <translation>텍스트 파일 (*.txt)</translation>
    </message>
    <message>
        <source>The bootloader is connected: press Download, or Restart device.</source>
        <translation>부트로더에 연결되었습니다. &apos;다운로드&apos; 또는 &apos;장치 다시 시작&apos;을 누르십시오.</translation>
    </message>
    <message>
        <source>Download anyway</source>
        <translation>그래도 다운로드</translation>
    </message>
    <message>
        <source>The download has to finish first: until then the device has no complete firmware.</source>
        <translation>먼저 다운로드를 완료해야 합니다. 완료될 때까지 장치의 펌웨어는 불완전한 상태입니다.</translation>
    </message>
    <message>
        <source>Leave as is</source>
        <translation>그대로 두기</translation>
    </message>
    <message>
        <source>The device restarts with its present firmware.</source>
        <translation>장치가 현재 펌웨어로 다시 시작됩니다.</translation>
    </message>
    <message>
        <source>The bootloader did not confirm the restart. Unplug the device and plug it in again if no data arrive.</source>
        <translation>부트로더가 다시 시작을 확인하지 않았습니다. 데이터가 수신되지 않으면 장치를 뽑았다가 다시 연결하십시오.</translation>
    </message>
    <message>
        <source>Stop the download? The device will have no complete firmware. Its bootloader remains: press Connect, then Download.</source>
        <translation>다운로드를 중지하시겠습니까? 장치의 펌웨어가 불완전한 상태가 됩니다. 부트로더는 남아 있으므로 &apos;연결&apos;을 누른 다음 &apos;다운로드&apos;를 누르면 다시 다운로드할 수 있습니다.</translation>
    </message>
    <message>
        <source>Keep downloading</source>
        <translation>다운로드 계속</translation>
    </message>
    <message>
        <source>The image could not be loaded; the device is unchanged. Choose another file.</source>
        <translation>이미지를 불러올 수 없습니다. 장치는 변경되지 않았습니다. 다른 파일을 선택하십시오.</translation>
    </message>
    <message>
        <source>The file %1 no longer exists: choose another one.</source>
        <translation>%1 파일이 더 이상 존재하지 않습니다. 다른 파일을 선택하십시오.</translation>
    </message>
    <message>
        <source>The file has changed since the interrupted update. Press Download to write it as it is now.</source>
        <translation>업데이트가 중단된 뒤에 파일이 변경되었습니다. 현재 내용을 쓰려면 &apos;다운로드&apos;를 누르십시오.</translation>
    </message>
    <message>
        <source>Saves what was done and how it ended as text</source>
        <translation>수행한 내용과 그 결과를 텍스트로 저장합니다</translation>
    </message>
    <message>
        <source>No update has run yet.</source>
        <translation>아직 업데이트를 수행하지 않았습니다.</translation>
    </message>
    <message>
        <source>There are doubts about this image: tick &quot;%1&quot; to write it.</source>
        <translation>이 이미지에 의심스러운 점이 있습니다. 쓰려면 &apos;%1&apos;에 체크하십시오.</translation>
    </message>
    <message>
        <source>Leaves the bootloader: the device starts its present firmware</source>
        <translation>부트로더를 종료하고 장치의 현재 펌웨어를 시작합니다</translation>
    </message>
    <message>
        <source>The file has changed since it was loaded. Choose it again to load the new version.</source>
        <translation>파일을 불러온 뒤에 변경되었습니다. 새 내용을 불러오려면 다시 선택하십시오.</translation>
    </message>
    <message>
        <source>Erase anyway</source>
        <translation>그래도 지우기</translation>
    </message>
    <message>
        <source>The serial port is closed or accepts no data.</source>
        <translation>시리얼 포트가 닫혀 있거나 데이터를 받지 않습니다.</translation>
    </message>
    <message>
        <source>The device answered, but not like a bootloader.</source>
        <translation>장치가 응답했지만 부트로더의 응답이 아닙니다.</translation>
    </message>
    <message>
        <source>Nothing was written: the device&apos;s firmware is unchanged.</source>
        <translation>아무것도 쓰지 않았습니다. 장치의 펌웨어는 변경되지 않았습니다.</translation>
    </message>
    <message>
        <source>The bootloader is still in the device: press Connect, then Download.</source>
        <translation>부트로더는 장치에 남아 있습니다. &apos;연결&apos;을 누른 다음 &apos;다운로드&apos;를 누르십시오.</translation>
    </message>
    <message>
        <source>The bootloader accepts no data: it reports packets of %1 bytes.</source>
        <translation>부트로더가 데이터를 받지 않습니다. 부트로더가 보고한 패킷 크기는 %1바이트입니다.</translation>
    </message>
    <message>
        <source>There is no file at this path: choose an image.</source>
        <translation>이 경로에 파일이 없습니다. 이미지를 선택하십시오.</translation>
    </message>
    <message>
        <source>Not a loadable Intel HEX file. See debug.log for the reason, or choose another file.</source>
        <translation>불러올 수 있는 Intel HEX 파일이 아닙니다. debug.log에서 원인을 확인하거나 다른 파일을 선택하십시오.</translation>
    </message>
</context>
<context>
    <name>port_choice</name>
    <message>
        <source>Enter a baud rate.</source>
        <translation>보드 레이트를 입력하십시오.</translation>
    </message>
    <message>
        <source>Enter a whole number, such as %1.</source>
        <translation>정수를 입력하십시오(예: %1).</translation>
    </message>
    <message>
        <source>Too low: the lowest rate is %1.</source>
        <translation>값이 너무 작습니다. 최솟값은 %1입니다.</translation>
    </message>
    <message>
        <source>Too high: the highest rate is %1.</source>
        <translation>값이 너무 큽니다. 최댓값은 %1입니다.</translation>
    </message>
</context>
<context>
    <name>product_profile</name>
    <message>
        <source>Legacy Wireless Gateway (0x62/0x63)</source>
        <translation>구형 무선 게이트웨이 (0x62/0x63)</translation>
    </message>
    <message>
        <source>Unknown Legacy Device</source>
        <translation>알 수 없는 구형 장치</translation>
    </message>
    <message>
        <source>Unknown Mz14 Device</source>
        <translation>알 수 없는 Mz14 장치</translation>
    </message>
    <message>
        <source>Unknown Wireless Gateway (0x62/0x63)</source>
        <translation>알 수 없는 무선 게이트웨이 (0x62/0x63)</translation>
    </message>
    <message>
        <source>Unknown Device</source>
        <translation>알 수 없는 장치</translation>
    </message>
</context>
<context>
    <name>serial_error_text</name>
    <message>
        <source>You are not allowed to open %1.</source>
        <translation>%1 포트를 열 권한이 없습니다.</translation>
    </message>
    <message>
        <source>Ask the administrator of this computer for access.</source>
        <translation>이 컴퓨터의 관리자에게 접근 권한을 요청하십시오.</translation>
    </message>
    <message>
        <source>Run &quot;%1&quot; in a terminal, then log out and in again.</source>
        <translation>터미널에서 &quot;%1&quot; 명령을 실행한 다음 로그아웃했다가 다시 로그인하십시오.</translation>
    </message>
    <message>
        <source>The connection to %1 was lost: the device was unplugged or switched off. Check the cable, then open the port again.</source>
        <translation>%1 포트와의 연결이 끊어졌습니다. 장치가 분리되었거나 전원이 꺼졌습니다. 케이블을 확인한 다음 포트를 다시 여십시오.</translation>
    </message>
    <message>
        <source>%1 is not there. Check the cable and that the device is switched on.</source>
        <translation>%1 포트를 찾을 수 없습니다. 케이블을 확인하고 장치의 전원이 켜져 있는지 확인하십시오.</translation>
    </message>
    <message>
        <source>Another program uses %1. Close it and try again.</source>
        <translation>다른 프로그램이 %1 포트를 사용하고 있습니다. 해당 프로그램을 종료한 다음 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>%1 is open already.</source>
        <translation>%1 포트가 이미 열려 있습니다.</translation>
    </message>
    <message>
        <source>%1 is not a serial port, or it does not support %2 baud. Choose another port or baud rate.</source>
        <translation>시리얼 포트가 아니거나 %2 baud를 지원하지 않습니다: %1. 다른 포트나 보드 레이트를 선택하십시오.</translation>
    </message>
    <message>
        <source>%1 cannot be used (error %2). Unplug the device, plug it in again and retry.</source>
        <translation>%1 포트를 사용할 수 없습니다(오류 %2). 장치를 분리했다가 다시 연결한 다음 재시도하십시오.</translation>
    </message>
</context>
<context>
    <name>session_text</name>
    <message>
        <source>The port is being opened.</source>
        <translation>포트를 여는 중입니다.</translation>
    </message>
    <message>
        <source>A command waits for the device&apos;s reply.</source>
        <translation>명령이 장치의 응답을 기다리고 있습니다.</translation>
    </message>
    <message>
        <source>Data arrive: the baud rate is right.</source>
        <translation>데이터가 수신되고 있습니다. 보드 레이트가 올바릅니다.</translation>
    </message>
    <message>
        <source>The device runs its bootloader. Restart it in the firmware update window first.</source>
        <translation>장치가 부트로더를 실행 중입니다. 먼저 펌웨어 업데이트 창에서 다시 시작하십시오.</translation>
    </message>
    <message>
        <source>Press Connect first.</source>
        <translation>먼저 &apos;연결&apos;을 누르십시오.</translation>
    </message>
    <message>
        <source>No download runs.</source>
        <translation>진행 중인 다운로드가 없습니다.</translation>
    </message>
    <message>
        <source>The port is being closed.</source>
        <translation>포트를 닫는 중입니다.</translation>
    </message>
    <message>
        <source>The device runs its bootloader.
It sends no data until it restarts.</source>
        <translation>장치가 부트로더를 실행 중입니다.
다시 시작할 때까지 데이터를 보내지 않습니다.</translation>
    </message>
    <message>
        <source>Firmware is being written.
Do not unplug the device.</source>
        <translation>펌웨어를 쓰는 중입니다.
장치를 뽑지 마십시오.</translation>
    </message>
    <message>
        <source>Trying %1 baud...</source>
        <translation>%1 보드를 시도하는 중...</translation>
    </message>
    <message>
        <source>Not connected. Open a serial port first.</source>
        <translation>연결되지 않았습니다. 먼저 시리얼 포트를 여십시오.</translation>
    </message>
    <message>
        <source>A firmware download is running and must finish first.</source>
        <translation>펌웨어 다운로드가 진행 중입니다. 끝날 때까지 기다리십시오.</translation>
    </message>
    <message>
        <source>The connection was lost. The device is waited for.</source>
        <translation>연결이 끊어졌습니다. 장치를 기다리는 중입니다.</translation>
    </message>
    <message>
        <source>Over UDP the device can only be listened to: commands may get lost or arrive in another order. Connect by tcp: or rfc2217: to send them.</source>
        <translation>UDP로는 장치에서 수신만 할 수 있습니다. 명령이 손실되거나 순서가 바뀔 수 있습니다. 명령을 전송하려면 tcp: 또는 rfc2217:로 연결하십시오.</translation>
    </message>
    <message>
        <source>This is a recording: there is no device to send anything to.</source>
        <translation>기록을 연 상태이므로 전송할 대상 장치가 없습니다.</translation>
    </message>
    <message>
        <source>The baud rate of this source is not set from here. Connect by rfc2217: to set that of a serial server.</source>
        <translation>이 소스의 보드 레이트는 여기에서 설정할 수 없습니다. 시리얼 서버의 보드 레이트를 설정하려면 rfc2217:로 연결하십시오.</translation>
    </message>
    <message>
        <source>The connection was lost.
Waiting for the device...</source>
        <translation>연결이 끊어졌습니다.
장치를 기다리는 중...</translation>
    </message>
    <message>
        <source>This is a file already: capturing it again would add nothing.</source>
        <translation>이미 파일입니다. 다시 캡처할 필요가 없습니다.</translation>
    </message>
    <message>
        <source>The file is being opened.</source>
        <translation>파일을 여는 중입니다.</translation>
    </message>
    <message>
        <source>Playing back %1
%2 packets/s</source>
        <translation>%1 재생 중
%2 패킷/초</translation>
    </message>
</context>
<context>
    <name>source_address</name>
    <message>
        <source>&quot;?%1&quot; is not known here. Only the baud rate can follow, such as ?baud=%2.</source>
        <translation>&quot;?%1&quot; 옵션은 사용할 수 없습니다. 보드 레이트만 지정할 수 있습니다(예: ?baud=%2).</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a baud rate. It is a whole number from %2 to %3.</source>
        <translation>보드 레이트가 아닙니다: &quot;%1&quot;. %2~%3 사이의 정수를 입력하십시오.</translation>
    </message>
    <message>
        <source>The address of a network source looks like %1.</source>
        <translation>네트워크 소스의 주소를 형식에 맞게 입력하십시오(예: %1).</translation>
    </message>
    <message>
        <source>The bracket after the IPv6 address is missing, as in %1.</source>
        <translation>IPv6 주소 뒤에 대괄호가 없습니다(올바른 예: %1).</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an IPv6 address.</source>
        <translation>IPv6 주소가 아닙니다: &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Only a colon and the port can follow the bracket, as in %1.</source>
        <translation>대괄호 뒤에는 콜론과 포트만 입력할 수 있습니다(예: %1).</translation>
    </message>
    <message>
        <source>An IPv6 address needs brackets, as in %1.</source>
        <translation>IPv6 주소를 대괄호로 묶으십시오(예: %1).</translation>
    </message>
    <message>
        <source>Add the host, as in %1.</source>
        <translation>호스트를 입력하십시오(예: %1).</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not the name or address of a host.</source>
        <translation>호스트의 이름이나 주소가 아닙니다: &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Add the port, as in %1.</source>
        <translation>포트를 입력하십시오(예: %1).</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a port. It is a whole number from 1 to 65535.</source>
        <translation>포트가 아닙니다: &quot;%1&quot;. 1~65535 사이의 정수를 입력하십시오.</translation>
    </message>
    <message>
        <source>Add the port, as in serial:/dev/ttyUSB0.</source>
        <translation>포트를 입력하십시오(예: serial:/dev/ttyUSB0).</translation>
    </message>
    <message>
        <source>Add the path of the file, as in file:recordings/walk.mcap.</source>
        <translation>파일의 경로를 입력하십시오(예: file:recordings/walk.mcap).</translation>
    </message>
    <message>
        <source>Nothing can follow &quot;demo:&quot;.</source>
        <translation>&quot;demo:&quot; 뒤에는 아무것도 입력할 수 없습니다.</translation>
    </message>
    <message>
        <source>Choose a port, or type its path or an address.</source>
        <translation>포트를 선택하거나 경로 또는 주소를 입력하십시오.</translation>
    </message>
    <message>
        <source>This text is longer than any address.</source>
        <translation>주소로 사용하기에는 너무 깁니다.</translation>
    </message>
    <message>
        <source>This text contains characters that no address has.</source>
        <translation>주소에 사용할 수 없는 문자가 있습니다.</translation>
    </message>
    <message>
        <source>&quot;%1:&quot; is not known here. Sources are serial:, tcp:, rfc2217:, udp:, file: and demo:.</source>
        <translation>&quot;%1:&quot; 형식은 사용할 수 없습니다. 사용할 수 있는 소스는 serial:, tcp:, rfc2217:, udp:, file:, demo:입니다.</translation>
    </message>
</context>
<context>
    <name>source_error_text</name>
    <message>
        <source>Another program is connected to %1, and only one can be.</source>
        <translation>다른 프로그램이 %1에 연결되어 있습니다. 한 번에 하나만 연결할 수 있습니다.</translation>
    </message>
    <message>
        <source>Close it there. If it is gone already, let the server drop old connections (ser2net: the option kickolduser).</source>
        <translation>해당 프로그램에서 연결을 닫으십시오. 이미 종료된 경우에는 이전 연결을 끊도록 서버를 설정하십시오(ser2net: kickolduser 옵션).</translation>
    </message>
    <message>
        <source>%1 closed the connection.</source>
        <translation>%1에서 연결을 닫았습니다.</translation>
    </message>
    <message>
        <source>Another program may have connected to the same port, which ends this connection, or the server was stopped. Close the other program, or start the server, then open the source again.</source>
        <translation>다른 프로그램이 같은 포트에 연결하여 이 연결이 종료되었거나 서버가 중지되었을 수 있습니다. 해당 프로그램을 종료하거나 서버를 시작한 다음 소스를 다시 여십시오.</translation>
    </message>
    <message>
        <source>The serial port at %1 does not accept 8 data bits without parity. Check the settings of the server.</source>
        <translation>%1의 시리얼 포트는 데이터 비트 8, 패리티 없음 설정을 지원하지 않습니다. 서버의 설정을 확인하십시오.</translation>
    </message>
    <message>
        <source>The serial port at %1 was set to %2 baud instead of %3. Choose a rate that it supports.</source>
        <translation>%1의 시리얼 포트가 %3 baud가 아닌 %2 baud로 설정되었습니다. 지원되는 보드 레이트를 선택하십시오.</translation>
    </message>
    <message>
        <source>There is no host with the name %1. Check its spelling, or enter its address instead.</source>
        <translation>이름이 %1인 호스트를 찾을 수 없습니다. 철자를 확인하거나 대신 주소를 입력하십시오.</translation>
    </message>
    <message>
        <source>Nothing listens on port %1 of %2. Start the serial server there (such as ser2net), or check the port.</source>
        <translation>%2의 포트 %1에서 수신 대기 중인 프로그램이 없습니다. 그곳에서 시리얼 서버(ser2net 등)를 시작하거나 포트를 확인하십시오.</translation>
    </message>
    <message>
        <source>There is no way to %1 (%2). Check the network cable or Wi-Fi of both computers.</source>
        <translation>%1에 도달할 수 없습니다(%2). 두 컴퓨터의 네트워크 케이블 또는 Wi-Fi를 확인하십시오.</translation>
    </message>
    <message>
        <source>%1 did not answer. Check that it is switched on, and that no firewall blocks port %2.</source>
        <translation>%1에서 응답이 없습니다. 전원이 켜져 있는지, 방화벽이 포트 %2번을 차단하지 않는지 확인하십시오.</translation>
    </message>
    <message>
        <source>%1 closed the connection and gave the reason &quot;%2&quot;.</source>
        <translation>%1에서 다음 이유로 연결을 닫았습니다: &quot;%2&quot;.</translation>
    </message>
    <message>
        <source>Check the settings of the server and its serial port.</source>
        <translation>서버와 해당 시리얼 포트의 설정을 확인하십시오.</translation>
    </message>
    <message>
        <source>The connection to %1 was lost: it does not answer any more. Check the network, then open the source again.</source>
        <translation>%1의 응답이 없어 연결이 끊어졌습니다. 네트워크를 확인한 다음 소스를 다시 여십시오.</translation>
    </message>
    <message>
        <source>The simulator is not installed: there is no program &quot;%1&quot; beside this one. Install it, or connect a device.</source>
        <translation>시뮬레이터가 설치되어 있지 않습니다. 이 프로그램과 같은 위치에 &quot;%1&quot; 프로그램이 없습니다. 시뮬레이터를 설치하거나 장치를 연결하십시오.</translation>
    </message>
    <message>
        <source>The simulator has ended.</source>
        <translation>시뮬레이터가 종료되었습니다.</translation>
    </message>
    <message>
        <source>The simulator could not be started.</source>
        <translation>시뮬레이터를 시작할 수 없습니다.</translation>
    </message>
</context>
<context>
    <name>status_text</name>
    <message>
        <source>Unconnected...</source>
        <translation>연결 안 됨...</translation>
    </message>
    <message>
        <source>Connected...</source>
        <translation>연결됨...</translation>
    </message>
    <message>
        <source>Using fallback product profile.</source>
        <translation>대체 제품 프로필을 사용합니다.</translation>
    </message>
    <message>
        <source>Product info deferred during live stream.</source>
        <translation>데이터 수신 중이므로 제품 정보 조회를 보류했습니다.</translation>
    </message>
    <message>
        <source>Product info pending...</source>
        <translation>제품 정보 조회 중...</translation>
    </message>
    <message>
        <source>Single node (0x%1)</source>
        <translation>단일 노드 (0x%1)</translation>
    </message>
    <message>
        <source>Gateway (0x%1)</source>
        <translation>게이트웨이 (0x%1)</translation>
    </message>
    <message>
        <source>Items %1</source>
        <translation>항목 %1</translation>
    </message>
    <message>
        <source>Connected.
No frame stream detected.</source>
        <translation>연결되었습니다.
프레임이 감지되지 않습니다.</translation>
    </message>
    <message>
        <source>Building connection...</source>
        <translation>연결을 설정하는 중...</translation>
    </message>
    <message>
        <source>[Serial]
%1 %2
</source>
        <translation>[시리얼]
%1 %2
</translation>
    </message>
    <message>
        <source>Protocol:</source>
        <translation>프로토콜:</translation>
    </message>
    <message>
        <source>FrameRate:</source>
        <translation>프레임 속도:</translation>
    </message>
    <message>
        <source>Wireless</source>
        <translation>무선</translation>
    </message>
    <message>
        <source>DONGLE ID</source>
        <translation>동글 ID</translation>
    </message>
    <message>
        <source>TOTAL OF NODE</source>
        <translation>전체 노드 수</translation>
    </message>
</context>
<context>
    <name>verdict_text</name>
    <message>
        <source>A packet of %1 bytes cannot be acknowledged within 0.2 s at %2 baud.</source>
        <translation>%2 baud에서는 %1바이트 패킷의 수신 확인이 0.2초 안에 이루어질 수 없습니다.</translation>
    </message>
    <message>
        <source>Packets of %1 bytes can.</source>
        <translation>%1바이트 패킷은 가능합니다.</translation>
    </message>
    <message>
        <source>The image is empty.</source>
        <translation>이미지가 비어 있습니다.</translation>
    </message>
    <message>
        <source>The file begins at %1, but it would be written to %2, where the first file of this run began. Restart the program to write it to its own address.</source>
        <translation>파일의 시작 주소는 %1이지만, 이번 실행에서 처음 사용한 파일의 시작 주소인 %2에 쓰게 됩니다. 파일 자체의 주소에 쓰려면 프로그램을 다시 시작하십시오.</translation>
    </message>
    <message>
        <source>The image does not fit the %1 KB of flash from this address on.</source>
        <translation>이 주소부터는 이미지가 %1 KB 플래시에 들어가지 않습니다.</translation>
    </message>
    <message>
        <source>The image&apos;s build of %1 is older than the device&apos;s: %2.</source>
        <translation>이미지의 빌드(%1)가 장치의 빌드(%2)보다 오래되었습니다.</translation>
    </message>
    <message>
        <source>Not verified: this bootloader cannot read the flash back.</source>
        <translation>검증 안 됨: 이 부트로더는 플래시를 다시 읽을 수 없습니다.</translation>
    </message>
    <message>
        <source>Not verified: the chip is locked against reading.</source>
        <translation>검증 안 됨: 칩의 읽기가 잠겨 있습니다.</translation>
    </message>
    <message>
        <source>Not verified: the bootloader refused to read the flash back (status %1).</source>
        <translation>검증 안 됨: 부트로더가 플래시 다시 읽기를 거부했습니다(상태 코드 %1).</translation>
    </message>
    <message>
        <source>%1 packets were sent again after silence and may have been written twice: the firmware may be wrong even if it starts.</source>
        <translation>응답이 없어 패킷 %1개를 재전송했으며 두 번 기록되었을 수 있습니다. 시작되더라도 펌웨어가 올바르지 않을 수 있습니다.</translation>
    </message>
    <message>
        <source>But the bootloader reported status %1.</source>
        <translation>다만 부트로더가 보고한 상태 코드는 %1입니다.</translation>
    </message>
    <message>
        <source>But the bootloader did not confirm the whole image.</source>
        <translation>다만 부트로더가 이미지 전체의 수신을 확인하지 않았습니다.</translation>
    </message>
    <message>
        <source>%1 bytes were written in %2 s, %3 of %4 packets were sent again.</source>
        <translation>%1바이트를 %2초 동안 썼습니다(패킷 %4개 중 %3개 재전송).</translation>
    </message>
    <message>
        <source>Reading the flash back found wrong bytes: %1, the first at %2.</source>
        <translation>플래시를 다시 읽은 결과 잘못된 바이트가 %1개 발견되었습니다(첫 위치: %2).</translation>
    </message>
    <message>
        <source>The device was not restarted: this firmware must not run.</source>
        <translation>이 펌웨어는 실행하면 안 되므로 장치를 다시 시작하지 않았습니다.</translation>
    </message>
    <message>
        <source>Reading the flash back was stopped.</source>
        <translation>플래시 다시 읽기가 중지되었습니다.</translation>
    </message>
    <message>
        <source>The connection to the device was lost.</source>
        <translation>장치와의 연결이 끊어졌습니다.</translation>
    </message>
    <message>
        <source>Check the cable, open the port again and press Connect.</source>
        <translation>케이블을 확인하고 포트를 다시 연 다음 &apos;연결&apos;을 누르십시오.</translation>
    </message>
    <message>
        <source>Connecting to the bootloader…</source>
        <translation>부트로더에 연결하는 중…</translation>
    </message>
    <message>
        <source>Checking the image…</source>
        <translation>이미지를 확인하는 중…</translation>
    </message>
    <message>
        <source>Erasing the flash…</source>
        <translation>플래시를 지우는 중…</translation>
    </message>
    <message>
        <source>Writing the image…</source>
        <translation>이미지를 쓰는 중…</translation>
    </message>
    <message>
        <source>Reading the flash back…</source>
        <translation>플래시를 다시 읽는 중…</translation>
    </message>
    <message>
        <source>Restarting the device…</source>
        <translation>장치를 다시 시작하는 중…</translation>
    </message>
    <message>
        <source>Waiting for the device…</source>
        <translation>장치를 기다리는 중…</translation>
    </message>
    <message>
        <source>Verified</source>
        <translation>검증됨</translation>
    </message>
    <message>
        <source>Not verified</source>
        <translation>검증 안 됨</translation>
    </message>
    <message>
        <source>Doubtful</source>
        <translation>의심됨</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>실패</translation>
    </message>
    <message>
        <source>Same build</source>
        <translation>같은 빌드</translation>
    </message>
    <message>
        <source>Did not come back</source>
        <translation>복귀하지 않음</translation>
    </message>
    <message>
        <source>The device is back with its new firmware.</source>
        <translation>장치가 새 펌웨어로 복귀했습니다.</translation>
    </message>
    <message>
        <source>The device is back. If it does not work as it should, press Connect and download again.</source>
        <translation>장치가 복귀했습니다. 정상적으로 동작하지 않으면 &apos;연결&apos;을 누르고 다시 다운로드하십시오.</translation>
    </message>
    <message>
        <source>Press Connect and download again, at a higher baud rate if there is one.</source>
        <translation>&apos;연결&apos;을 누르고 다시 다운로드하십시오. 가능하면 더 높은 보드 레이트를 사용하십시오.</translation>
    </message>
    <message>
        <source>Unplug it and plug it in again, and open its port: the new firmware may use another baud rate. If its bootloader answers there, this window opens by itself.</source>
        <translation>장치를 뽑았다가 다시 연결하고 포트를 여십시오. 새 펌웨어는 다른 보드 레이트를 사용할 수 있습니다. 그 포트에서 부트로더가 응답하면 이 창이 자동으로 열립니다.</translation>
    </message>
    <message>
        <source>not known</source>
        <translation>알 수 없음</translation>
    </message>
    <message>
        <source>Before: %1 · Now: %2</source>
        <translation>이전: %1 · 현재: %2</translation>
    </message>
    <message>
        <source>%1 at %2</source>
        <translation>%1(%2)</translation>
    </message>
    <message>
        <source>%1 baud or more is also fast enough.</source>
        <translation>%1 baud 이상의 속도에서도 가능합니다.</translation>
    </message>
    <message>
        <source>The bootloader accepts no data: it reports packets of %1 bytes.</source>
        <translation>부트로더가 데이터를 받지 않습니다. 부트로더가 보고한 패킷 크기는 %1바이트입니다.</translation>
    </message>
    <message>
        <source>An earlier erase of this size took this chip more than 1.5 s, and the protocol waits no longer: it would be erased and not written.</source>
        <translation>이 칩은 이전에 이 크기를 지우는 데 1.5초 넘게 걸렸습니다. 프로토콜은 그 이상 기다리지 않으므로 지우기만 하고 쓰지 못하게 됩니다.</translation>
    </message>
    <message>
        <source>The file has no end record: part of it may be missing.</source>
        <translation>파일에 종료 레코드가 없습니다. 일부가 누락되었을 수 있습니다.</translation>
    </message>
    <message>
        <source>Data after a blank line, where the image ends, would not be written.</source>
        <translation>이미지는 빈 줄에서 끝나므로 빈 줄 뒤의 데이터는 쓰지 않습니다.</translation>
    </message>
    <message>
        <source>Data after a start address or an unknown record, where the image ends, would not be written.</source>
        <translation>이미지는 시작 주소 또는 알 수 없는 레코드에서 끝나므로 그 뒤의 데이터는 쓰지 않습니다.</translation>
    </message>
    <message>
        <source>Data after the end record would not be written.</source>
        <translation>종료 레코드 뒤의 데이터는 쓰지 않습니다.</translation>
    </message>
    <message>
        <source>The image does not begin at the start of a sector (%1 bytes): what precedes it in the sector is erased too.</source>
        <translation>이미지가 섹터(%1바이트)의 시작 위치에서 시작하지 않습니다. 같은 섹터에서 이미지 앞에 있는 내용도 지워집니다.</translation>
    </message>
    <message>
        <source>The previous update was for %1, this one is for %2.</source>
        <translation>이전 업데이트의 주소는 %1, 이번 업데이트의 주소는 %2입니다.</translation>
    </message>
    <message>
        <source>The stack pointer is not a word address in RAM.</source>
        <translation>스택 포인터가 RAM 내의 워드 주소가 아닙니다.</translation>
    </message>
    <message>
        <source>The reset vector is not a Thumb address inside the image.</source>
        <translation>리셋 벡터가 이미지 내의 Thumb 주소가 아닙니다.</translation>
    </message>
    <message>
        <source>The image is very small for firmware.</source>
        <translation>펌웨어치고는 이미지가 매우 작습니다.</translation>
    </message>
    <message>
        <source>Not verified: reading the flash back did not finish.</source>
        <translation>검증 안 됨: 플래시 다시 읽기가 완료되지 않았습니다.</translation>
    </message>
    <message>
        <source>The flash was read back and matches the image.</source>
        <translation>플래시를 다시 읽어 이미지와 일치함을 확인했습니다.</translation>
    </message>
    <message>
        <source>The bootloader is still in the device: press Connect, then Download.</source>
        <translation>부트로더는 장치에 남아 있습니다. &apos;연결&apos;을 누른 다음 &apos;다운로드&apos;를 누르십시오.</translation>
    </message>
    <message>
        <source>The image was written, but not verified.</source>
        <translation>이미지를 썼지만 검증되지 않았습니다.</translation>
    </message>
    <message>
        <source>The folder is not writable: after a crash there would have been no reminder.</source>
        <translation>폴더에 쓸 수 없습니다. 프로그램이 비정상 종료되었더라도 이 업데이트에 대한 알림이 표시되지 않았을 것입니다.</translation>
    </message>
    <message>
        <source>But the device came back with its previous build.</source>
        <translation>다만 장치가 이전 빌드로 복귀했습니다.</translation>
    </message>
    <message>
        <source>Check that this is the right file.</source>
        <translation>올바른 파일인지 확인하십시오.</translation>
    </message>
    <message>
        <source>Check that this is the right file, then press Connect and download again.</source>
        <translation>올바른 파일인지 확인한 다음 &apos;연결&apos;을 누르고 다시 다운로드하십시오.</translation>
    </message>
    <message>
        <source>But the device has not identified itself since its restart.</source>
        <translation>다만 다시 시작한 뒤 장치의 식별 정보가 수신되지 않았습니다.</translation>
    </message>
    <message>
        <source>The update of %1 with %2, started %3, was written completely but not verified.</source>
        <translation>%3에 시작한 %1 업데이트(%2)는 끝까지 기록되었지만 검증되지 않았습니다.</translation>
    </message>
    <message>
        <source>The update of %1 with %2, started %3, was interrupted at %4 of %5 bytes.</source>
        <translation>%3에 시작한 %1 업데이트(%2)가 %5바이트 중 %4바이트에서 중단되었습니다.</translation>
    </message>
</context>
</TS>
